// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <filesystem>

#include "tests/console/verbs/verb_test.h"

// What a verb that changes styles starts: one write, one registration, and nothing of the window.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

// Counts the files that take a name in a folder, as the last step of a write does.
class Replacements {
 public:
  explicit Replacements(const std::string& folder) : queue_(inotify_init1(IN_NONBLOCK)) {
    inotify_add_watch(queue_, folder.c_str(), IN_MOVED_TO | IN_CREATE);
  }
  ~Replacements() { close(queue_); }
  Replacements(const Replacements&) = delete;
  Replacements& operator=(const Replacements&) = delete;
  // How often this name was taken since the last call.
  int of(const std::string& name) {
    alignas(inotify_event) std::array<char, 65536> bytes{};
    int count = 0;
    for (ssize_t size = 0; (size = read(queue_, bytes.data(), bytes.size())) > 0;) {
      for (ssize_t at = 0; at < size;) {
        inotify_event event{};
        std::memcpy(&event, bytes.data() + at, sizeof event);
        const std::string taken = bytes.data() + at + sizeof event;
        if ((event.mask & IN_MOVED_TO) != 0 && taken == name) ++count;
        at += static_cast<ssize_t>(sizeof event) + static_cast<ssize_t>(event.len);
      }
    }
    return count;
  }

 private:
  int queue_;
};

class StyleFrame : public VerbTest {
 protected:
  static constexpr const char* settings = "root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist";
  StyleFrame() {
    putStyles("root4.plist");
    root_.folder().write(settings,
                         "<plist><dict><key>SMSelectedTag</key><string>QB</string><key>ToolbarTag</key>"
                         "<string>MT</string></dict></plist>");
    fs::create_directories(root_.home() + "/Library/Application Support/Wordhaven");
  }
  std::string selection() const {
    const std::string bytes = root_.folder().read(std::string("root/Users/taro/") + styleFile);
    const std::size_t at = bytes.find("<key>Selection</key>");
    return bytes.substr(at, bytes.find("</dict>", at) - at);
  }
  std::string choices() const {
    const std::string bytes = root_.folder().read(settings);
    return std::string(bytes.find("<key>SMSelectedTag</key>\n\t<string>QB</string>") != std::string::npos ||
                               bytes.find("<key>SMSelectedTag</key><string>QB</string>") != std::string::npos
                           ? "QB"
                           : "another tool") +
           (bytes.find("MT") != std::string::npos ? " MT" : " another pane");
  }
  bool hasToolList() const {
    return root_.folder().exists("root/Users/taro/Library/Preferences/Wordhaven/TarvoManager.txt");
  }
  const std::vector<std::vector<std::string>> edits{{"style", "set", "3", "Opt1=1"},
                                                    {"style", "rename", "3", "Gamma"},
                                                    {"style", "import", "3", "fixtures/import/valid.whstyle"},
                                                    {"dictionary", "add", "3", "ej", "c.TRet"},
                                                    {"dictionary", "remove", "3", "ej", "a.TRet"},
                                                    {"dictionary", "move", "3", "ej", "b.TRet", "2"}};
};

TEST_F(StyleFrame, anEditTouchesNeitherAChoiceNorTheToolList) {
  for (const std::vector<std::string>& edit : edits) {
    putStyles("root4.plist");
    const std::string before = selection();
    const ToolResult result = run(edit);
    EXPECT_EQ(result.err, "") << edit[1];
    EXPECT_EQ(result.status, 0) << edit[1];
    EXPECT_EQ(selection(), before) << edit[1];
    EXPECT_EQ(choices(), "QB MT") << edit[1];
    EXPECT_FALSE(hasToolList()) << edit[1];
  }
}

TEST_F(StyleFrame, settingsThatCannotBeStoredAreTold) {
  fs::remove(root_.folder() / settings);
  root_.folder().write(std::string(settings) + "/inside", "a folder in the way");
  const ToolResult result = run(edits[0]);
  EXPECT_EQ(result.status, 0);
  const std::string unread = told(root_.folder() / settings,
                                  "the settings cannot be read, so those of a first start hold; it is no file; mend "
                                  "the file or move it away");
  EXPECT_EQ(result.err, unread + told(root_.folder() / settings, "cannot be written; it is a folder"));
}

TEST_F(StyleFrame, anEditIsOneReplacementOfTheStyleFileAndOneRegistration) {
  for (const std::vector<std::string>& edit : edits) {
    putStyles("root4.plist");
    Replacements styles(root_.home() + "/Library/Preferences/Wordhaven");
    Replacements service(root_.home() + "/Library/Application Support/Wordhaven");
    EXPECT_EQ(run(edit).status, 0) << edit[1];
    EXPECT_EQ(styles.of("TarvoStyle2009.plist"), 1) << edit[1];
    EXPECT_EQ(service.of("TarvoEngine.plist"), 1) << edit[1];
  }
}

TEST_F(StyleFrame, whatIsSoAlreadyIsSaidAndNothingIsWritten) {
  run({"engine", "push"});
  const auto before = tree();
  for (const std::vector<std::string>& edit :
       std::vector<std::vector<std::string>>{{"style", "set", "3", "Opt1=2"},
                                             {"style", "rename", "3", "Beta"},
                                             {"style", "use", "3", "QB"},
                                             {"dictionary", "add", "3", "ej", "b.TRet"},
                                             {"dictionary", "remove", "3", "ej", "c.TRet"},
                                             {"dictionary", "move", "3", "ej", "b.TRet", "1"}}) {
    const ToolResult result = run(edit);
    EXPECT_EQ(result.out, "already\n") << edit[1];
    EXPECT_EQ(result.err, "") << edit[1];
    EXPECT_EQ(result.status, 0) << edit[1];
  }
  EXPECT_EQ(tree(), before);
}

TEST_F(StyleFrame, whatTheLoadJoinedTravelsInTheOneWriteAndIsRememberedAfterIt) {
  putStyles("medical-pair.plist");
  root_.folder().write("root/opt/data", "");
  root_.folder().write("medical.strings",
                       "<plist><dict><key>TechETekado</key><string>/opt/data</string></dict></plist>");
  const std::vector<std::string> texts{"--strings", root_.folder() / "medical.strings"};
  Replacements styles(root_.home() + "/Library/Preferences/Wordhaven");
  const std::string before = root_.folder().read(std::string("root/Users/taro/") + styleFile);
  EXPECT_EQ(run({"style", "rename", "1", " "}, texts).status, 1);
  EXPECT_EQ(root_.folder().read(std::string("root/Users/taro/") + styleFile), before);
  EXPECT_EQ(root_.folder().read(settings).find("Tekado1stE"), std::string::npos) << "a refused edit remembers nothing";
  EXPECT_EQ(styles.of("TarvoStyle2009.plist"), 0);
  EXPECT_EQ(run({"style", "set", "0", "Opt1=2"}, texts).status, 0);
  EXPECT_EQ(styles.of("TarvoStyle2009.plist"), 1);
  EXPECT_NE(root_.folder().read(settings).find("Tekado1stE"), std::string::npos);
}

TEST_F(StyleFrame, theProductsStylesBecomeTheUsersWithTheFirstEditEvenOneThatChangesNothing) {
  fs::rename(stylePath(), root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  Replacements styles(root_.home() + "/Library/Preferences/Wordhaven");
  EXPECT_EQ(run({"style", "set", "3", "Opt1=2"}).out, "already\n");
  EXPECT_EQ(styles.of("TarvoStyle2009.plist"), 1);
  EXPECT_NE(root_.folder().read(std::string("root/Users/taro/") + styleFile).find("Beta"), std::string::npos);
}

TEST_F(StyleFrame, stylesThatCannotBeReadAreLeftAloneByEveryEdit) {
  fs::copy_file(stylePath(), root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "broken");
  const auto before = tree();
  for (const std::vector<std::string>& edit : edits) {
    const ToolResult result = run(edit);
    EXPECT_EQ(result.err,
              told(stylePath(),
                   "nothing was changed, the style file cannot be read; it is no property list; mend it, bring "
                   "earlier styles back with restore, or begin with the styles of the product with --reseed"));
    EXPECT_EQ(result.status, 1) << edit[1];
  }
  EXPECT_EQ(treeButLock(), before);
}

TEST_F(StyleFrame, stylesThatCannotBeReadGiveWayOnlyWhereThatIsAskedForAndAreKept) {
  fs::copy_file(stylePath(), root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "broken");
  const ToolResult result = run({"style", "set", "1", "Opt1=2", "--reseed"});
  EXPECT_EQ(result.status, 0) << result.err;
  EXPECT_NE(style(1).find("\"Opt1\":2"), std::string::npos);
  EXPECT_EQ(root_.folder().read(std::string("root/Users/taro/") + styleFile + ".unreadable"), "broken");
  const ToolResult history = run({"history"});
  EXPECT_NE(history.out.find("  unreadable  "), std::string::npos) << history.out;
  EXPECT_NE(run({"doctor"}).out.find("TarvoStyle2009.plist.unreadable"), std::string::npos);
}

TEST_F(StyleFrame, stylesThatCannotBeReadAreShownAsTheProductsAndTold) {
  fs::copy_file(scenarioFolder() + "/fixtures/two-styles.plist",
                root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "broken");
  const auto before = tree();
  const ToolResult result = run({"styles"});
  EXPECT_EQ(result.out, "0  One\n1  Two  MG\n");
  EXPECT_EQ(result.err, told(stylePath(),
                             "cannot be read, so the styles of the product are shown; it is no property list; mend it, "
                             "or bring earlier styles back with restore"));
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(run({"style", "show", "One"}).status, 1);
  EXPECT_EQ(run({"dictionaries", "0", "ej"}).status, 1);
  EXPECT_EQ(tree(), before);
}

TEST_F(StyleFrame, aStyleIsChosenForTheNamedToolsAlone) {
  const ToolResult result = run({"style", "use", "Beta", "MG", "NP"});
  EXPECT_EQ(result.out + result.err, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle\n1  Alpha\n2  (divider)\n3  Beta        MG QB NP\n");
  EXPECT_EQ(choices(), "QB MT");
}

TEST_F(StyleFrame, aToolThatThereIsNotIsAUsageErrorAndAMissingSelectionARefusal) {
  const auto before = tree();
  const ToolResult unknown = run({"style", "use", "3", "MG", "MX"});
  EXPECT_EQ(unknown.err,
            "tarvoctl: TOOL MX: not a value for this; allowed: MG, QB, TX, GD, TMA, NP, ADD, MAIL; "
            "nearest: MG\n");
  EXPECT_EQ(unknown.status, 2);
  EXPECT_EQ(tree(), before);
  putStyles("no-selection.plist");
  EXPECT_EQ(run({"style", "use", "3", "MG"}).status, 1);
}

TEST_F(StyleFrame, answersAreJsonWhereTheyAreAskedFor) {
  EXPECT_EQ(run({"--json", "style", "set", "3", "Opt1=1"}).out,
            "{\"changed\":[\"Beta\"],\"done\":true,\"registered\":true}\n");
  EXPECT_EQ(run({"style", "set", "3", "Opt1=1", "--json"}).out,
            "{\"already\":true,\"changed\":[],\"done\":true,\"registered\":null}\n");
  EXPECT_EQ(run({"--engine", "none", "style", "set", "3", "Opt1=0", "--json"}).out,
            "{\"changed\":[\"Beta\"],\"done\":true,\"registered\":null}\n");
  const ToolResult refused = run({"style", "set", "4", "Opt1=1", "--json"});
  EXPECT_EQ(refused.out,
            R"({"done":false,"error":{"cause":"none has this index or name","cure":"tarvoctl styles lists them",)"
            R"("name":"4","what":"there is no such style"}})"
            "\n");
  EXPECT_EQ(refused.err, told("4", noSuchStyle));
}

TEST_F(StyleFrame, aWrongWordIsNamedWholeAlsoWithAColonInIt) {
  EXPECT_EQ(run({"style", "set", "3", "Opt1=x: y", "--json"}).out,
            R"({"done":false,"error":{"cause":"allowed: 0, 1, 2","cure":"","name":"Opt1 x: y",)"
            R"("what":"not a value for this"}})"
            "\n");
}

}  // namespace
}  // namespace tarvo::test
