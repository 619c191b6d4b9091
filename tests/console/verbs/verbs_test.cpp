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
