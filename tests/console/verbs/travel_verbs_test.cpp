// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "platform/posix/instance_lock.h"
#include "tests/console/verbs/verb_test.h"

// The verbs that rename styles and carry them as files, as an administrator meets them.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

class TravelVerbs : public VerbTest {
 protected:
  TravelVerbs() { putStyles("root4.plist"); }
  void expectDone(const std::vector<std::string>& words) const {
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.status, 0);
  }
  // Refused with a reason; no style and no choice has changed.
  void expectRefused(const std::vector<std::string>& words, const std::string& reason, int status) const {
    const std::string before = allStyles();
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, reason);
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(allStyles(), before);
  }
  std::string allStyles() const {
    std::string all = run({"styles", "--json"}).out;
    for (const int index : {0, 1, 2, 3}) all += style(index);
    return all;
  }
  ToolResult runInJapanese(std::vector<std::string> words) const {
    words.insert(words.begin(), {"--root", root_.root(), "--home", root_.home(), "--language", "ja"});
    return runTool(words, scenarioFolder());
  }
  const TemporaryFolder files_;
};

constexpr const char* beta =
    R"({"EJ":{"Opt1":2,"Opt2":2,"Opt3":1,"TD":["b.TRet","a.TRet"],"UD":["u.eud2"]},"Future":{"k":1},"ID":3,)"
    R"("JE":{"FLEX_MODE":"x","PARS_SAHEN":"past","TD":["j2.TRet"],"TOpt1":4,"TOpt2":4,"TOpt3":0,"TOpt4":true,)"
    R"("TOpt5":0},"Name":"Beta"})"
    "\n";

TEST_F(TravelVerbs, aStyleIsRenamedAndTheChoiceEndsAsItBegan) {
  expectDone({"style", "rename", "3", "  特許 Gamma "});
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle  MG\n1  Alpha\n2  (divider)\n3  特許 Gamma  QB\n");
}

TEST_F(TravelVerbs, refusedNamesAreTold) {
  const std::string taken =
      "cannot be the name; the standard style or another one has it, letter case aside; choose another name";
  expectRefused({"style", "rename", "3", "ALPHA"}, told("ALPHA", taken), 1);
  expectRefused({"style", "rename", "3", "nomalstyle"}, told("nomalstyle", taken), 1);
  expectRefused({"style", "rename", "3", " \n"},
                told(" \\x0A", "cannot be the name; nothing but white space is in it; write a name"), 1);
  const char* unkeepable = "cannot be the name; a style file cannot hold every character of it; choose another name";
  expectRefused({"style", "rename", "3",
                 "a\x01"
                 "b"},
                told("a\\x01"
                     "b",
                     unkeepable),
                1);
  expectRefused({"style", "rename", "3", "\xFF\xFE"}, told("\\xFF\\xFE", unkeepable), 1);
}

TEST_F(TravelVerbs, refusedNamesAreToldInTheUsersLanguage) {
  EXPECT_TRUE(runInJapanese({"style", "rename", "3", " "}).err.starts_with("tarvoctl:  : 名前に使えません; "));
}

TEST_F(TravelVerbs, stylesThatCannotBeRenamed) {
  expectRefused({"style", "rename", "0", "X"},
                told("NomalStyle", "keeps its name; it is the standard style; rename another style"), 1);
  expectRefused({"style", "rename", "2", "X"}, told("2", isDividerTold), 1);
  expectRefused({"style", "rename", "4", "X"}, told("4", noSuchStyle), 1);
}

TEST_F(TravelVerbs, aStyleIsExportedAsItStands) {
  expectDone({"style", "export", "3", files_ / "x.whstyle"});
  const std::string bytes = files_.read("x.whstyle");
  EXPECT_TRUE(bytes.starts_with("<?xml"));
  EXPECT_NE(bytes.find("<key>FLEX_MODE</key>"), std::string::npos);
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle  MG\n1  Alpha\n2  (divider)\n3  Beta        QB\n");
}

TEST_F(TravelVerbs, theFileIsTakenAsItIsNamed) {
  expectDone({"style", "export", "1", files_ / "no type"});
  EXPECT_TRUE(fs::exists(files_ / "no type"));
  expectDone({"style", "export", "3", files_ / "no type"});
  EXPECT_NE(files_.read("no type").find("Beta"), std::string::npos);
}

TEST_F(TravelVerbs, anExportThatCannotBeWrittenIsTold) {
  const std::string missing = files_ / "missing/x.whstyle";
  expectRefused({"style", "export", "3", missing}, told(files_ / "missing", "cannot be written; it is not there"), 1);
  expectRefused({"style", "export", "3", files_.path()}, told(files_.path(), "cannot be written; it is a folder"), 1);
  expectRefused({"style", "export", "2", files_ / "x.whstyle"}, told("2", isDividerTold), 1);
  EXPECT_FALSE(fs::exists(files_ / "x.whstyle"));
}

TEST_F(TravelVerbs, aStyleIsNotExportedOverWhatTheManagerKeepsForItself) {
  namespace fs = std::filesystem;
  ASSERT_EQ(run({"style", "set", "1", "Opt2=2"}).status, 0);
  const std::string earlier = root_.home() + "/Library/Application Support/Wordhaven/Tarvo Styles";
  const std::string settings = root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.plist";
  const std::string set = fs::directory_iterator(earlier)->path();
  fs::create_symlink(stylePath(), files_ / "to the styles");
  fs::create_symlink(set, files_ / "to a set");
  fs::create_symlink(fs::path(settings).parent_path(), files_ / "preferences");
  const auto before = tree();
  for (const std::string& path : {stylePath(), set, earlier + "/new.whstyle", settings, files_ / "to the styles",
                                  files_ / "to a set", files_ / "preferences/com.wordhaven.TarvoManager.lock"}) {
    const ToolResult result = runInEnglish({"style", "export", "1", path});
    EXPECT_EQ(result.status, 1) << path;
    EXPECT_EQ(result.err, told(path,
                               "cannot be written; it is a file in which the manager keeps something itself; "
                               "choose another name or folder"));
  }
  EXPECT_EQ(tree(), before);
}

TEST_F(TravelVerbs, aStyleTravelsFromOneHomeToAnother) {
  expectDone({"style", "export", "3", files_ / "x.whstyle"});
  putStyles("root4.plist");
  expectDone({"style", "import", "1", files_ / "x.whstyle"});
  std::string expected = beta;
  expected.replace(expected.find("\"ID\":3"), 6, "\"ID\":1").replace(expected.find("Beta"), 4, "Alpha");
  EXPECT_EQ(style(1), expected);
  EXPECT_EQ(style(3), beta);
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle  MG\n1  Alpha\n2  (divider)\n3  Beta        QB\n");
}

TEST_F(TravelVerbs, relativePathsStartAtTheWorkingFolder) {
  expectDone({"style", "import", "1", "fixtures/import/valid.whstyle"});
  EXPECT_NE(style(1).find(R"("K":"v","Name":"Alpha")"), std::string::npos);
}

TEST_F(TravelVerbs, theShownPaneDoesNotMatter) {
  root_.folder().write("root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist",
                       "<plist><dict><key>ToolbarTag</key><string>MT</string></dict></plist>");
  expectDone({"style", "import", "1", "fixtures/import/valid.whstyle"});
  expectDone({"style", "export", "1", files_ / "x.whstyle"});
  EXPECT_NE(files_.read("x.whstyle").find("<key>K</key>"), std::string::npos);
}

TEST_F(TravelVerbs, filesThatAreNoStyleAreToldAndChangeNothing) {
  const std::string again = "; export the style again";
  for (const auto& [file, why] :
       {std::pair<std::string, std::string>{"missing.whstyle", "it is not there"},
        {"fixtures", "it is no file"},
        {"fixtures/root4.plist", "it is no style: EJ is missing" + again},
        {"fixtures/import/no-ej.whstyle", "it is no style: EJ is missing" + again},
        {"fixtures/import/no-opt2.whstyle", "it is no style: EJ/Opt2 is missing, allowed is 0 to 2" + again},
        {"fixtures/import/topt3-is-4.whstyle", "it is no style: JE/TOpt3 is 4, allowed is 0 to 3" + again}}) {
    expectRefused({"style", "import", "3", file}, told(scenarioFolder() + "/" + file, "cannot be read; " + why), 1);
  }
}

TEST_F(TravelVerbs, stylesThatCannotBeReplaced) {
  expectRefused({"style", "import", "2", "fixtures/import/valid.whstyle"}, told("2", isDividerTold), 1);
  expectRefused({"style", "import", "9", "fixtures/import/valid.whstyle"}, told("9", noSuchStyle), 1);
}

TEST_F(TravelVerbs, aStyleFileWithoutARememberedChoiceIsWorkedOnAll) {
  putStyles("no-selection.plist");
  expectDone({"style", "rename", "3", "Gamma"});
  expectDone({"style", "import", "1", "fixtures/import/valid.whstyle"});
  expectDone({"style", "export", "3", files_ / "x.whstyle"});
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle\n1  Alpha\n2  (divider)\n3  Gamma\n");
  EXPECT_NE(files_.read("x.whstyle").find("Gamma"), std::string::npos);
}

TEST_F(TravelVerbs, theLockIsNeeded) {
  const InstanceLock lock(DiskPath(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock"));
  ASSERT_EQ(lock.state(), InstanceLock::State::held);
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"style", "rename", "1", "X"},
        std::vector<std::string>{"style", "export", "1", files_ / "x"},
        std::vector<std::string>{"style", "import", "1", "fixtures/import/valid.whstyle"},
        std::vector<std::string>{"engine", "push"}, std::vector<std::string>{"engine", "pull"}}) {
    expectRefused(words, lockedLine(), 3);
  }
}

TEST_F(TravelVerbs, theCommandLineIsChecked) {
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"style", "rename", "1"}, std::vector<std::string>{"style", "rename"},
        std::vector<std::string>{"style", "rename", "", "X"}, std::vector<std::string>{"style", "export", "1"},
        std::vector<std::string>{"style", "import", "1"}, std::vector<std::string>{"style", "import", "1", "a", "b"},
        std::vector<std::string>{"engine"}, std::vector<std::string>{"engine", "burn"},
        std::vector<std::string>{"engine", "push", "1"}, std::vector<std::string>{"open"}}) {
    const auto before = tree();
    const ToolResult result = run(words);
    EXPECT_EQ(result.status, 2) << testing::PrintToString(words);
    EXPECT_EQ(result.out, "");
    EXPECT_NE(result.err, "");
    EXPECT_EQ(tree(), before);
  }
}

}  // namespace
}  // namespace tarvo::test
