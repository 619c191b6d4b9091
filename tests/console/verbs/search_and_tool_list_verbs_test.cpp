// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "tests/console/verbs/addin_verb_test.h"

// The search for an Office elsewhere, and the tool list.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

TEST_F(AddinVerbs, aSearchTellsWhatItAdded) {
  put("/Volumes/D/Word.app/Contents/Info.plist", read("/Applications/O11/Word.app/Contents/Info.plist"));
  const std::string folder = root_.root() + "/Volumes/D";
  expect({"addin", "search", folder}, 0, "added  Word 2011  2011  root:/Volumes/D/Word.app\n", "");
  expect({"addin", "search", folder}, 0, "already\n",
         told(folder,
              "nothing was added; this folder holds no application of Office 2011 that is not listed; name the "
              "folder in which Office lies"));
  const std::string listed = run({"addins"}).out;
  EXPECT_NE(listed.find("root:/Volumes/D/Word.app"), std::string::npos);
  expectUntouched({"addin", "search", folder + "/none"}, 1,
                  told(folder + "/none", "cannot be listed; it is not there"));
  const std::string file = folder + "/Word.app/Contents/Info.plist";
  expectUntouched({"addin", "search", file}, 1, told(file, "cannot be listed; what should be a folder is none"));
}

TEST_F(AddinVerbs, aSearchTellsWhatCouldNotBeRead) {
  put("/Volumes/D/Word.app/Contents/Info.plist", read("/Applications/O11/Word.app/Contents/Info.plist"));
  makeFolder("/Volumes/D/Excel.app/Contents");
  fs::create_symlink("Info.plist", real("/Volumes/D/Excel.app/Contents/Info.plist"));
  put("/Volumes/D/Notes.app/Contents/Info.plist", "damaged");
  const std::string unread = real("/Volumes/D/Excel.app/Contents/Info.plist");
  expect({"addin", "search", real("/Volumes/D")}, 0, "added  Word 2011  2011  root:/Volumes/D/Word.app\n",
         told(unread, "cannot be read; links lead round in a circle; remove one of them"));
}

TEST_F(AddinVerbs, aSearchAnswersAsJson) {
  put("/Volumes/D/Word.app/Contents/Info.plist", read("/Applications/O11/Word.app/Contents/Info.plist"));
  EXPECT_EQ(run({"addin", "search", real("/Volumes/D"), "--json"}).out,
            R"({"changed":["Word 2011"],"done":true,"registered":null})"
            "\n");
  EXPECT_EQ(run({"addin", "search", real("/Volumes/D"), "--json"}).out,
            R"({"already":true,"changed":[],"done":true,"registered":null})"
            "\n");
}

TEST_F(AddinVerbs, theToolListIsWrittenForAnotherTool) {
  expect({"tool-list"}, 0, "", "");
  EXPECT_NE(read(toolList).find("Tool_Path=tMG8\r\n"), std::string::npos);
  expect({"tool-list", "tUD8"}, 0, "", "");
  EXPECT_NE(read(toolList).find("Tool_Name=UD\r\nTool_Path=tUD8\r\nTool_Action=2\r\n"), std::string::npos);
  const auto before = tree();
  expect({"tool-list"}, 0, "already\n", "");
  expect({"tool-list", "tUD8"}, 0, "already\n", "");
  EXPECT_EQ(tree(), before);
  put(toolList, "of another program");
  EXPECT_EQ(run({"tool-list", "--json"}).out,
            R"({"changed":[")" + real(toolList) + R"("],"done":true,"registered":null})" + "\n");
  EXPECT_NE(read(toolList).find("Tool_Path=tUD8\r\n"), std::string::npos);
  expectUntouched({"tool-list", "tud8"}, 2,
                  told("TOOL tud8",
                       "not a value for this; allowed: tMG8, tTX8, tUD8, tTM8, tTL8, tNP8, tQB8; nearest: "
                       "tMG8"));
}

TEST_F(AddinVerbs, aToolListThatCannotBeWrittenIsTold) {
  makeFolder(toolList);
  expect({"tool-list", "tNP8"}, 1, "", told(real(toolList), "cannot be written; it is a folder"));
  EXPECT_TRUE(fs::is_directory(root_.root() + toolList));
}

}  // namespace
}  // namespace tarvo::test
