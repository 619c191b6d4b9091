// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/tool_list_file.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/install/tool_list_fixture.h"

namespace tarvo::test {
namespace {

TEST_F(ToolList, isEightLinesInOneFixedForm) {
  choose(0);
  const std::string expected =
      "Server_Path=tTS8\r\n"
      "Cache_Path=Macintosh HD:Users:taro:Library:Preferences:Wordhaven:Cache\r\n"
      "Setting_Path=tSM8\r\n"
      "Helpfile_Path=Macintosh HD:Applications:TarvoEiwa.localized:Contents:AddInHelp:index.htm\r\n"
      "Tool_Name=MG\r\n"
      "Tool_Path=tMG8\r\n"
      "Tool_Action=1\r\n"
      "Tool_Parameter=fileTranslate\r\n";
  EXPECT_EQ(written(), expected);
  EXPECT_EQ(written().size(), 274U);
  EXPECT_EQ(std::count(expected.begin(), expected.end(), '\n'), 8);
}

TEST_F(ToolList, namesCodeActionAndParameterOfEachTool) {
  const char* const lines[] = {"Tool_Path=tMG8\r\nTool_Action=1\r\nTool_Parameter=fileTranslate\r\n",
                               "Tool_Path=tTX8\r\nTool_Action=1\r\nTool_Parameter=fileTranslate\r\n",
                               "Tool_Path=tUD8\r\nTool_Action=2\r\nTool_Parameter=doSearch\r\n",
                               "Tool_Path=tTM8\r\nTool_Action=0\r\nTool_Parameter=\r\n",
                               "Tool_Path=tTL8\r\nTool_Action=0\r\nTool_Parameter=\r\n",
                               "Tool_Path=tNP8\r\nTool_Action=0\r\nTool_Parameter=\r\n",
                               "Tool_Path=tQB8\r\nTool_Action=0\r\nTool_Parameter=\r\n"};
  for (int index = 0; index < 7; ++index) {
    choose(index);
    EXPECT_EQ(lastLines(), lines[index]) << index;
  }
}

TEST_F(ToolList, aToolWithoutActionIsWrittenShorterThanItIsRemembered) {
  choose(3);
  EXPECT_EQ(written().size(), 261U);
  EXPECT_EQ(*defaults.find("Tool_Parameter"), PropertyList(" "));
  EXPECT_EQ(*defaults.find("Tool_Action"), PropertyList(0));
}

TEST_F(ToolList, theChoiceIsRememberedBeforeTheFileIsWritten) {
  choose(2);
  EXPECT_EQ(log, "Tool_Name Tool_Path Tool_Action Tool_Parameter flush write:manager.plist write:TarvoManager.txt ");
  EXPECT_EQ(*defaults.find("Tool_Name"), PropertyList("UD"));
  EXPECT_EQ(*defaults.find("Tool_Path"), PropertyList("tUD8"));
  EXPECT_EQ(*defaults.find("Tool_Action"), PropertyList(2));
  EXPECT_EQ(*defaults.find("Tool_Parameter"), PropertyList("doSearch"));
  const UserDefaults anotherRun(files, folder.at("Users/taro/Library/Preferences/manager.plist"));
  EXPECT_EQ(*anotherRun.find("Tool_Action"), PropertyList(2));
}

// What another encoder makes of a text in UTF-8.
std::string convertedByIconv(const TemporaryFolder& folder, const std::string& text) {
  folder.write("utf8.txt", text);
  const std::string command = "iconv -f UTF-8 -t CP932 '" + folder / "utf8.txt" + "' > '" + folder / "cp932.txt" + "'";
  if (std::system(command.c_str()) != 0) return "iconv failed";
  return folder.read("cp932.txt");
}

TEST_F(ToolList, theTitleIsWrittenInShiftJisAsOtherProgramsWriteIt) {
  // 表, ソ and 能 have a backslash as their second byte; the half-width letters take one byte each.
  for (const char* title : {"翻訳エディタ", "表示 ソフト 能", "ﾂｰﾙ", "①髙～"}) {
    outlets.officeToolPopup.setItemTitle(0, title);
    choose(0);
    EXPECT_NE(written().find(convertedByIconv(folder, "\r\nTool_Name=" + std::string(title) + "\r\n")),
              std::string::npos)
        << title;
  }
}

TEST_F(ToolList, readsBackThroughAnotherDecoderLineByLine) {
  outlets.officeToolPopup.setItemTitle(2, "ユーザー辞書～表示");
  choose(2);
  const std::string command = "iconv -f CP932 -t UTF-8 '" + folder / listFile + "' > '" + folder / "utf8.txt" + "'";
  ASSERT_EQ(std::system(command.c_str()), 0);
  EXPECT_EQ(folder.read("utf8.txt"),
            "Server_Path=tTS8\r\n"
            "Cache_Path=Macintosh HD:Users:taro:Library:Preferences:Wordhaven:Cache\r\n"
            "Setting_Path=tSM8\r\n"
            "Helpfile_Path=Macintosh HD:Applications:TarvoEiwa.localized:Contents:AddInHelp:index.htm\r\n"
            "Tool_Name=ユーザー辞書～表示\r\n"
            "Tool_Path=tUD8\r\n"
            "Tool_Action=2\r\n"
            "Tool_Parameter=doSearch\r\n");
  EXPECT_EQ(written(), convertedByIconv(folder, folder.read("utf8.txt")));
}

TEST_F(ToolList, endsEveryLineInTheSameWayAndHasNoMark) {
  for (int index = 0; index < 7; ++index) {
    choose(index);
    const std::string text = written();
    EXPECT_TRUE(text.starts_with("Server_Path="));
    EXPECT_TRUE(text.ends_with("\r\n"));
    for (std::size_t i = 0; i < text.size(); ++i) {
      EXPECT_TRUE(text[i] != '\n' || text[i - 1] == '\r') << index;
      EXPECT_TRUE(text[i] != '\r' || text[i + 1] == '\n') << index;
    }
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 8);
  }
}

TEST_F(ToolList, aCharacterThatShiftJisLacksBecomesAQuestionMark) {
  outlets.officeToolPopup.setItemTitle(0, "한글 é 😀 x");
  choose(0);
  EXPECT_NE(written().find("\r\nTool_Name=?? ? ? x\r\n"), std::string::npos);
}

TEST_F(ToolList, onlyTheParameterIsTrimmedAndNoValueIsReadAsAFormat) {
  outlets.officeToolPopup.setItemTitle(0, " %@ %s=");
  choose(0);
  EXPECT_NE(written().find("\r\nTool_Name= %@ %s=\r\n"), std::string::npos);
  EXPECT_EQ(*defaults.find("Tool_Name"), PropertyList(" %@ %s="));
}

TEST_F(ToolList, withoutAKnownChoiceStoresAndWritesNothing) {
  outlets.officeToolPopup.setItems(std::vector<PopUpButton::Item>(9));
  for (const int index : {-1, 7, 8}) choose(index);
  EXPECT_EQ(log, "");
  EXPECT_FALSE(folder.exists(listFile));
}

TEST_F(ToolList, theCachePathFollowsTheConfiguration) {
  Dictionary configuration;
  configuration.set("preferencesWordhavenCache", "/Volumes/Data/Cache:1");
  configuration.set("VolumeName", "Boot");
  const ProductPaths configured(locations, configuration);
  const TarvoCommonModule configuredModule(configured);
  ToolListFile other(files, defaults, configuredModule, file.path());
  EXPECT_TRUE(other.write(0, "MG"));
  EXPECT_NE(written().find("\r\nCache_Path=Data:Cache/1\r\n"), std::string::npos);
  EXPECT_NE(written().find("\r\nHelpfile_Path=Boot:Applications:"), std::string::npos);
}

TEST_F(ToolList, isForAToolWhenFileAndSettingsSayJustThat) {
  EXPECT_FALSE(file.isFor(2, "UD"));
  choose(2);
  EXPECT_TRUE(file.isFor(2, "UD"));
  EXPECT_FALSE(file.isFor(2, "Dictionary"));
  EXPECT_FALSE(file.isFor(3, "UD"));
  const std::string bytes = written();
  folder.write(listFile, bytes + "x");
  EXPECT_FALSE(file.isFor(2, "UD"));
  folder.write(listFile, bytes);
  defaults.set("Tool_Action", true);
  EXPECT_FALSE(file.isFor(2, "UD"));
}

TEST_F(ToolList, restoringSelectsTheStoredTool) {
  for (std::size_t i = 0; i < gAppCreatorArray.size(); ++i) {
    defaults.set("Tool_Path", gAppCreatorArray[i]);
    toolList.restoreTool();
    EXPECT_EQ(outlets.officeToolPopup.indexOfSelectedItem(), static_cast<int>(i));
  }
}

TEST_F(ToolList, restoringTakesTheFirstToolWhenNoneIsStored) {
  outlets.officeToolPopup.selectItemAtIndex(4);
  toolList.restoreTool();
  EXPECT_EQ(outlets.officeToolPopup.indexOfSelectedItem(), 0);
}

TEST_F(ToolList, restoringAnUnknownToolLeavesTheChoiceAlone) {
  outlets.officeToolPopup.selectItemAtIndex(4);
  for (const char* code : {"tXX8", "tmg8", ""}) {
    defaults.set("Tool_Path", code);
    toolList.restoreTool();
    EXPECT_EQ(outlets.officeToolPopup.indexOfSelectedItem(), 4) << code;
  }
}

TEST_F(ToolList, restoringReadsAStoredValueOfAnotherKindAsNone) {
  outlets.officeToolPopup.selectItemAtIndex(4);
  defaults.set("Tool_Path", 3);
  toolList.restoreTool();
  EXPECT_EQ(outlets.officeToolPopup.indexOfSelectedItem(), 0);
}

}  // namespace
}  // namespace tarvo::test
