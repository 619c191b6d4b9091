// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/sibling_tools.h"

#include <gtest/gtest.h>

#include "platform/plist/property_list.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "tests/support/memory_files.h"

namespace tarvo {
namespace {

TEST(SiblingTools, standInTheOrderOfTheChooserWithTheirIcons) {
  const std::vector<std::string> icons{"MG.tif",  "QB.tif", "TX.tif",       "GD32.tif",
                                       "TMA.tif", "NP.tif", "office32.tif", "mail32.tif"};
  ASSERT_EQ(siblingTools.size(), icons.size());
  for (std::size_t i = 0; i < icons.size(); ++i) EXPECT_EQ(siblingTools[i].icon, icons[i]);
}

TEST(SiblingTools, haveTheTextsOfTheirKeysAsIds) {
  Texts texts;
  std::vector<std::string> ids{"MG", "QB", "TX", "GD", "TMA", "NP", "ADD", "MAIL"};
  EXPECT_EQ(toolIds(texts), ids);
  Dictionary table;
  table.set("GD", "Guide");
  texts.overlay(table);
  ids[3] = "Guide";
  EXPECT_EQ(toolIds(texts), ids);
}

TEST(SiblingTools, theOneThatWasChosenLastIsRememberedByItsId) {
  Texts texts;
  Dictionary table;
  table.set("GD", "Guide");
  texts.overlay(table);
  test::MemoryFiles files;
  UserDefaults defaults(files, DiskPath("/settings.plist"));
  EXPECT_EQ(rememberedTool(defaults, texts), Tool::manager);
  for (const auto& [id, tool] : {std::pair("Guide", Tool::readingGuide), {"MAIL", Tool::mail}, {"GD", Tool::manager}}) {
    defaults.set("SMSelectedTag", id);
    EXPECT_EQ(rememberedTool(defaults, texts), tool) << id;
  }
  defaults.set("SMSelectedTag", 3);
  EXPECT_EQ(rememberedTool(defaults, texts), Tool::manager);
}

}  // namespace
}  // namespace tarvo
