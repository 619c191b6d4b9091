// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/sibling_tools.h"

#include <gtest/gtest.h>

#include "platform/plist/property_list.h"
#include "platform/services/texts.h"

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

}  // namespace
}  // namespace tarvo
