// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <tuple>

#include "platform/posix/instance_lock.h"
#include "tests/console/verbs/verb_test.h"

// What all verbs have in common: their words, the lock, and what is told of a disk or a service that fails.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

using Verbs = VerbTest;

TEST_F(Verbs, theCommandLineIsChecked) {
  EXPECT_EQ(run({"--version"}).out, "tarvoctl " TARVO_VERSION "\n");
  EXPECT_EQ(run({"--version"}).status, 0);
  EXPECT_EQ(run({"--help"}).status, 0);
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{}, std::vector<std::string>{"frobnicate"}, std::vector<std::string>{"style"},
        std::vector<std::string>{"style", "show"}, std::vector<std::string>{"style", "set", "1"},
        std::vector<std::string>{"style", "show", "+1"}, std::vector<std::string>{"styles", "--language", "fr"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.status, 2) << testing::PrintToString(words);
    EXPECT_EQ(result.out, "") << testing::PrintToString(words);
    EXPECT_NE(result.err, "") << testing::PrintToString(words);
  }
}

TEST_F(Verbs, filesOfTheCommandLineThatCannotBeReadAreTold) {
  putStyles("root4.plist");
  const auto before = tree();
  const std::string folder = scenarioFolder() + "/", gone = "cannot be read; it is not there";
  for (const auto& [words, name, parts] :
       {std::tuple<std::vector<std::string>, std::string, std::string>{
            {"styles", "--strings", "missing.strings"}, "missing.strings", gone},
        {{"style", "set", "1", "Opt1=2", "--strings", "missing", "--strings", "none"}, "missing", gone},
        {{"styles", "--paths", "missing.plist"}, "missing.plist", gone},
        {{"run", "-", "--paths", "fixtures/import/root-is-a-list.whstyle"},
         "fixtures/import/root-is-a-list.whstyle",
         "cannot be read; it is a property list without keys"},
        {{"run", "missing.scenario"}, "missing.scenario", gone},
        {{"run", "fixtures"}, "fixtures", "cannot be read; it is a folder"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.err, told(folder + name, parts));
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.status, 1);
  }
  EXPECT_EQ(run({"styles", "--json", "--paths", "missing.plist"}).out,
            R"({"done":false,"error":{"cause":"it is not there","cure":"","name":")" + folder +
                R"(missing.plist","what":"cannot be read"}})" + "\n");
  EXPECT_EQ(tree(), before);
}

TEST_F(Verbs, optionsMayStandBehindTheVerb) {
  putStyles("root4.plist");
  const ToolResult result =
      runTool({"style", "show", "0", "--json", "--root", root_.root(), "--home", root_.home()}, scenarioFolder());
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out, style(0));
}

TEST_F(Verbs, styleSetWaitsForNobody) {
  putStyles("root4.plist");
  const auto before = tree();
  const InstanceLock lock(DiskPath(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock"));
  ASSERT_EQ(lock.state(), InstanceLock::State::held);
  const ToolResult result = run({"style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, lockedLine());
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(run({"styles"}).status, 0);
  EXPECT_EQ(treeButLock(), before);
}

TEST_F(Verbs, aScriptStartsNoProgramOnFilesThatAnotherOneHolds) {
  putStyles("root4.plist");
  const InstanceLock lock(DiskPath(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock"));
  const std::string script = root_.root() + "/start.scenario";
  std::ofstream(script) << "default ToolbarTag\nstart\n";
  const ToolResult result = run({"run", script});
  EXPECT_EQ(result.err, script + ":2: another manager works on these files\n");
  EXPECT_EQ(result.status, 3);
}

TEST_F(Verbs, aLockThatIsNoFileIsToldAndNothingIsDone) {
  putStyles("root4.plist");
  const std::string lock = root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock";
  const std::string script = root_.root() + "/start.scenario";
  std::ofstream(script) << "start\n";
  const auto expectRefused = [&] {
    const auto before = tree();
    const ToolResult result = run({"style", "set", "1", "Opt1=2"});
    EXPECT_EQ(result.err, told(lock,
                               "nothing was done; this is the place of the lock for these files, and no file lies "
                               "there; move away what is there"));
    EXPECT_EQ(result.status, 3);
    const ToolResult asScript = run({"run", script});
    EXPECT_EQ(asScript.err, script + ":1: the lock of these files is no file: home:/Library/Preferences/" +
                                "com.wordhaven.TarvoManager.lock\n");
    EXPECT_EQ(asScript.status, 3);
    EXPECT_EQ(tree(), before);
  };
  std::filesystem::create_directory(lock);
  expectRefused();
  std::filesystem::remove(lock);
  std::filesystem::create_symlink(root_.root() + "/elsewhere", lock);
  expectRefused();
  EXPECT_FALSE(std::filesystem::exists(root_.root() + "/elsewhere"));
}

TEST_F(Verbs, whatAKilledProgramLeftBehindIsGoneAfterTheNextChange) {
  putStyles("root4.plist");
  const std::string left = "root/Users/taro/Library/Preferences/Wordhaven/.tarvo-01234567-1-1-1-0123456789abcdef";
  root_.folder().write(left, "x");
  EXPECT_EQ(run({"styles"}).status, 0);
  EXPECT_TRUE(root_.folder().exists(left)) << "who only reads leaves it";
  EXPECT_EQ(run({"style", "set", "1", "Opt1=2"}).status, 0);
  EXPECT_FALSE(root_.folder().exists(left));
}

TEST_F(Verbs, settingsThatCannotBeReadAreTold) {
  putStyles("root4.plist");
  root_.folder().write("root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist", "<plist>\n<dict>");
  const std::string line = told(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.plist",
                                "the settings cannot be read, so those of a first start hold; it is no property list "
                                "(line 2, column 7); mend the file or move it away");
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"--engine", "none", "engine", "status"}, {"addins"}, {"style", "use", "1", "MG"}}) {
    EXPECT_EQ(run({"styles"}).err, "") << "reads none";
    EXPECT_EQ(run(words).err, line) << testing::PrintToString(words);
  }
}

TEST_F(Verbs, noNameObeysTheTerminal) {
  putStyles("root4.plist");
  std::string bytes = root_.folder().read(std::string("root/Users/taro/") + styleFile);
  for (std::size_t at = 0; (at = bytes.find("Alpha", at)) != std::string::npos;)
    bytes.replace(at, 5, "A\u009B31m\u202E<tab>\t");
  for (std::size_t at = 0; (at = bytes.find("<tab>", at)) != std::string::npos;) bytes.erase(at, 5);
  root_.folder().write(std::string("root/Users/taro/") + styleFile, bytes);
  EXPECT_NE(run({"styles"}).out.find("1  A\\xC2\\x9B31m\\xE2\\x80\\xAE\\x09\n"), std::string::npos)
      << run({"styles"}).out;
  for (const std::vector<std::string>& words : {std::vector<std::string>{"styles"},
                                                {"style", "show", "1"},
                                                {"style", "show", "no\x1B[31m"},
                                                {"style", "rename", "1", "\x1B[31m"},
                                                {"--\x1B[31m"},
                                                {"run", "no\x1B"},
                                                {"history"},
                                                {"doctor"},
                                                {"dictionaries", "1", "ej"},
                                                {"style", "import", "1", "no\x1B"},
                                                {"dictionary", "add", "1", "ej", "no\x1B"}}) {
    const ToolResult result = run(words);
    const std::string all = result.out + result.err;
    EXPECT_EQ(all.find_first_of("\x1B\t"), std::string::npos) << all;
    EXPECT_EQ(all.find("\u009B"), std::string::npos) << all;
    EXPECT_EQ(all.find("\u202E"), std::string::npos) << all;
  }
}

TEST_F(Verbs, anEngineAddressThatNothingServesIsAUsageError) {
  putStyles("root4.plist");
  const ToolResult result = run({"--engine", "gopher://engine.example", "style", "set", "1", "Opt1=2"});
  const std::string line = told("--engine gopher://engine.example",
                                "not a value for this; allowed: none, or an address with http:// or https://");
  EXPECT_EQ(result.err, line);
  EXPECT_EQ(result.status, 2);
  const std::string script = root_.root() + "/log.scenario";
  std::ofstream(script) << "log\n";
  const ToolResult asScript = run({"--engine", "gopher://engine.example", "run", script});
  EXPECT_EQ(asScript.err, line);
  EXPECT_EQ(asScript.status, 2);
  EXPECT_EQ(run({"--engine", "none", "style", "set", "1", "Opt1=2"}).err, "");
}

TEST_F(Verbs, aServiceThatCannotBeReachedIsToldOnceAndTheStatusSaysThatItWaits) {
  putStyles("root4.plist");
  const std::string service = "http://127.0.0.1:1/styles";
  const ToolResult result = run({"--engine", service, "style", "set", "1", "Opt1=2", "Opt2=2"});
  EXPECT_EQ(result.err, told(service,
                             "the styles are stored here only; nobody answers there; tarvoctl engine push hands "
                             "them over"));
  EXPECT_EQ(result.status, 5);
  EXPECT_NE(style(1).find("\"Opt2\":2"), std::string::npos);
  const ToolResult none = run({"--paths", "fixtures/paths/no-engine-paths.plist", "style", "set", "1", "Opt1=1"});
  EXPECT_EQ(none.err, "");
  EXPECT_EQ(none.status, 0);
}

TEST_F(Verbs, styleSetTellsAFailedWriteAndTheServiceDoesNotGetWhatIsNotStored) {
  putStyles("root4.plist");
  fs::copy_file(scenarioFolder() + "/fixtures/root4.plist",
                root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  fs::remove(stylePath());
  fs::create_symlink(root_.root() + "/nowhere/styles.plist", stylePath());
  const ToolResult result = run({"style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, told(root_.root() + "/nowhere", "cannot be written; it is not there"));
  EXPECT_EQ(result.status, 1);
  EXPECT_FALSE(fs::exists(root_.home() + "/Library/Application Support/Wordhaven/TarvoEngine.plist"));
}

TEST_F(Verbs, aFolderThatCannotBeMadeIsTold) {
  fs::copy_file(scenarioFolder() + "/fixtures/root4.plist",
                root_.root() + "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist");
  root_.folder().write("root/Users/taro/Library", "text");
  const ToolResult result = run({"style", "set", "1", "Opt1=2"});
  EXPECT_EQ(result.err, told(root_.home() + "/Library", "this folder cannot be made; what should be a folder is none"));
  EXPECT_EQ(result.status, 1);
}

}  // namespace
}  // namespace tarvo::test
