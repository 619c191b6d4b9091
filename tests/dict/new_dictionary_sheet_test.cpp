// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/new_dictionary.h"

#include <gtest/gtest.h>

#include "tests/dict/new_dictionary_fixture.h"

namespace tarvo::test {
namespace {

struct Chosen {
  int tag;
  Direction shown;
  DictionaryKind kind;
  Direction direction;
  std::string prompt;
};

TEST_F(NewDictionaryTest, theTagChoosesKindAndDirectionWhateverTheTab) {
  const Chosen cases[] = {
      {10, EJ, user, EJ, "NewEJUDText"},    {11, EJ, user, JE, "NewJEUDText"}, {12, EJ, memory, EJ, "NewEJTMAText"},
      {13, EJ, memory, JE, "NewJETMAText"}, {10, JE, user, EJ, "NewEJUDText"}, {12, JE, memory, EJ, "NewEJTMAText"},
      {1, EJ, user, EJ, "NewEJUDText"},     {1, JE, user, JE, "NewJEUDText"},  {2, JE, memory, JE, "NewJETMAText"}};
  for (const Chosen& chosen : cases) {
    world_.editing.didSelectTabViewItem(world_.texts.localized(chosen.shown == EJ ? "EJTab" : "JETab"));
    world_.newDictionary.newUD(chosen.tag);
    EXPECT_EQ(world_.request.kind, chosen.kind);
    EXPECT_EQ(world_.request.direction, chosen.direction) << chosen.tag;
    EXPECT_EQ(world_.sheet.NewDicText.stringValue(), chosen.prompt);
    world_.newDictionary.newDicCancelButtonAction();
  }
}

TEST_F(NewDictionaryTest, theSheetStandsOverTheMainWindowAndRestrictsTheMenus) {
  world_.sheet.NewDicNameField.setStringValue("old");
  world_.newDictionary.newUD(10);
  EXPECT_EQ(world_.windows.sheetOver(world_.manager.myWindow), &world_.sheet.NewDicWindow);
  EXPECT_TRUE(world_.flags.gMenuControllFlag);
  EXPECT_EQ(world_.sheet.NewDicNameField.stringValue(), "");
  EXPECT_EQ(world_.sheet.NewDicFolderNameField.stringValue(), "UDFolderName");
  EXPECT_EQ(world_.sheet.NewDicFolderTitleField.stringValue(), "UDFolderNameTitle");
  world_.newDictionary.newDicCancelButtonAction();
  EXPECT_FALSE(world_.flags.gMenuControllFlag);
  world_.newDictionary.newUD(13);
  EXPECT_EQ(world_.sheet.NewDicFolderNameField.stringValue(), "UserTMAFolderName");
  EXPECT_EQ(world_.sheet.NewDicFolderTitleField.stringValue(), "UserTMAFolderNameTitle");
}

TEST_F(NewDictionaryTest, anotherTagIsNoKindAndMakesNothing) {
  world_.newDictionary.newUD(10);
  world_.newDictionary.newDicCancelButtonAction();
  create(7, "N");
  EXPECT_EQ(world_.request.kind, std::nullopt);
  EXPECT_EQ(world_.sheet.NewDicText.stringValue(), "NewEJUDText") << "the texts of the last kind stay";
  EXPECT_EQ(world_.takeLog(), (Log{"sheet ended 1", "posted "}));
  EXPECT_FALSE(world_.flags.gMenuControllFlag);
}

TEST_F(NewDictionaryTest, anEmptyNameOfAnotherKindIsRefusedInSilence) {
  for (const int kind : {0, 7}) {
    create(kind, " \t");
    EXPECT_EQ(world_.takeLog(), Log{}) << "neither a beep nor an alert nor the end of the sheet";
    EXPECT_TRUE(world_.sheet.NewDicWindow.isShown());
    EXPECT_EQ(world_.sheet.NewDicNameField.stringValue(), "");
    world_.newDictionary.newDicCancelButtonAction();
    EXPECT_EQ(world_.takeLog(), Log{"sheet ended 0"});
  }
}

TEST_F(NewDictionaryTest, cancellingMakesAndPostsNothing) {
  world_.newDictionary.newUD(10);
  world_.sheet.NewDicNameField.userType(" a/b");
  world_.takeLog();
  world_.newDictionary.newDicCancelButtonAction();
  EXPECT_EQ(world_.takeLog(), Log{"sheet ended 0"});
  EXPECT_EQ(world_.sheet.NewDicNameField.stringValue(), " a/b");
}

TEST_F(NewDictionaryTest, theSheetWaitsForAnotherOneAndRestrictsTheMenusOnlyWhenItIsUp) {
  world_.windows.orderFront(world_.manager.myWindow);
  world_.windows.beginSheet(world_.picker.newDicWindow, world_.manager.myWindow, nullptr);
  world_.newDictionary.newUD(10);
  world_.newDictionary.newUD(13);
  EXPECT_FALSE(world_.flags.gMenuControllFlag);
  world_.windows.endSheet(world_.picker.newDicWindow, 0);
  EXPECT_TRUE(world_.flags.gMenuControllFlag);
  EXPECT_EQ(world_.sheet.NewDicText.stringValue(), "NewEJUDText") << "first come, first served";
  world_.newDictionary.newDicCancelButtonAction();
  EXPECT_TRUE(world_.flags.gMenuControllFlag);
  EXPECT_EQ(world_.sheet.NewDicText.stringValue(), "NewJETMAText");
  world_.newDictionary.newDicCancelButtonAction();
  EXPECT_FALSE(world_.flags.gMenuControllFlag);
}

TEST_F(NewDictionaryTest, aRefusedNameLeavesTheSheetUp) {
  create(10, " A/B ");
  EXPECT_TRUE(world_.sheet.NewDicWindow.isShown());
  EXPECT_TRUE(world_.flags.gMenuControllFlag);
  EXPECT_EQ(world_.sheet.NewDicNameField.stringValue(), "A/B");
}

}  // namespace
}  // namespace tarvo::test
