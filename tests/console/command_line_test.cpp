// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/console/verbs/verb_test.h"

// The words of tarvoctl as its user meets them; the rules are tested with app/command_line/command_words.
namespace tarvo::test {
namespace {

using CommandLineOfTool = VerbTest;

TEST_F(CommandLineOfTool, aWrongWordIsToldWhateverTextsAreLaid) {
  const ToolResult result = run({"engine", "pul"});
  EXPECT_EQ(result.err, "tarvoctl: pul: no such command; allowed: status, push, pull; nearest: pull\n");
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.status, 2);
}

TEST_F(CommandLineOfTool, aWrongWordIsToldInTheLanguageThatWasAskedFor) {
  EXPECT_EQ(run({"engine", "--language", "ja"}).err,
            "tarvoctl: engine COMMAND: 指定されていません; 指定できるもの: status, push, pull\n");
}

TEST_F(CommandLineOfTool, jsonMayBeAskedForBeforeTheVerb) {
  putStyles("root4.plist");
  EXPECT_EQ(run({"--json", "styles"}).out, run({"styles", "--json"}).out);
  EXPECT_TRUE(run({"--json", "styles"}).out.starts_with("[{"));
}

TEST_F(CommandLineOfTool, jsonIsRefusedWhereThereIsNone) {
  putStyles("root4.plist");
  const auto before = tree();
  const ToolResult result = run({"run", "--json"});
  EXPECT_EQ(result.err, "tarvoctl: --json: nothing of the kind can stand here; allowed: tarvoctl run [FILE]\n");
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(tree(), before);
}

TEST_F(CommandLineOfTool, theHelpOfAVerbSaysWhatItsWordsMean) {
  const std::string help = runInEnglish({"run", "--help"}).out;
  const std::size_t at = help.find("\n  FILE ");
  ASSERT_NE(at, std::string::npos) << help;
  EXPECT_TRUE(help.substr(at, help.find('\n', at + 1) - at).ends_with(" path of the file")) << help;
}

TEST_F(CommandLineOfTool, theListMayStandBeforeOrBehindWhatIsDoneToIt) {
  putStyles("root4.plist");
  EXPECT_EQ(run({"dictionary", "3", "ej", "remove", "a.TRet"}).status, 0);
  EXPECT_EQ(run({"dictionary", "remove", "3", "ej", "b.TRet"}).status, 0);
  EXPECT_EQ(run({"style", "show", "3"}).out.find("TRet, "), std::string::npos);
  const ToolResult result = run({"dictionary", "3", "ej", "remov", "a.TRet"});
  EXPECT_TRUE(result.err.starts_with("tarvoctl: 3: no such command; allowed: add, remove, move")) << result.err;
  EXPECT_EQ(result.status, 2);
}

TEST_F(CommandLineOfTool, aFolderWithoutResourcesIsRefusedByAllButTheDoctor) {
  putStyles("root4.plist");
  root_.folder().write("none/WordhavenPaths.plist", "");
  const std::string folder = root_.folder() / "none";
  const auto before = tree();
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"styles"}, std::vector<std::string>{"style", "show", "0"},
        std::vector<std::string>{"style", "rename", "1", "X"}, std::vector<std::string>{"run", "-"}}) {
    std::vector<std::string> all{"--resources", folder};
    all.insert(all.end(), words.begin(), words.end());
    const ToolResult result = run(all);
    EXPECT_TRUE(result.err.starts_with("tarvoctl: " + folder + "/DefaultAddin.plist: is not there; ")) << result.err;
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.status, 1);
  }
  const ToolResult doctor = run({"--resources", folder, "doctor"});
  EXPECT_NE(doctor.out.find("DefaultAddin.plist"), std::string::npos);
  EXPECT_EQ(doctor.status, 0);
  EXPECT_EQ(tree(), before);
}

TEST_F(CommandLineOfTool, pathsOfTheProductThatCannotBeReadAreNotTakenForNone) {
  putStyles("root4.plist");
  root_.folder().write("odd/WordhavenPaths.plist", "damaged");
  root_.folder().write("odd/DefaultAddin.plist", "<plist><array/></plist>");
  const std::string folder = root_.folder() / "odd";
  const auto before = tree();
  for (const std::vector<std::string>& words : {std::vector<std::string>{"styles"}, {"engine", "push"}, {"run", "-"}}) {
    std::vector<std::string> all{"--resources", folder};
    all.insert(all.end(), words.begin(), words.end());
    const ToolResult result = run(all);
    EXPECT_TRUE(result.err.starts_with("tarvoctl: " + folder + "/WordhavenPaths.plist: ")) << result.err;
    EXPECT_EQ(result.status, 1);
  }
  EXPECT_EQ(tree(), before);
  EXPECT_NE(run({"--resources", folder, "doctor"}).out.find("problem  paths"), std::string::npos);
}

TEST_F(CommandLineOfTool, resourcesThatCannotBeLookedAtAreToldByTheirCause) {
  const std::string folder = root_.folder() / "round";
  std::filesystem::create_directory(folder);
  std::filesystem::create_symlink("DefaultAddin.plist", folder + "/DefaultAddin.plist");
  const ToolResult result = run({"--resources", folder, "styles"});
  EXPECT_EQ(result.err, "tarvoctl: " + folder +
                            "/DefaultAddin.plist: cannot be looked at; links lead round in a circle; remove one of "
                            "them\n");
  EXPECT_EQ(result.status, 1);
}

}  // namespace
}  // namespace tarvo::test
