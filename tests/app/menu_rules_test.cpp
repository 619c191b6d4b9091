// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/menu_rules.h"

#include <gtest/gtest.h>

#include "platform/services/texts.h"
#include "style/process_flags.h"

namespace tarvo {
namespace {

Texts translated() {
  Dictionary table;
  for (const char* key : {"StyleExportMenu", "StyleInportMenu", "appHelp", "whHelp", "supportHelp", "oldEJTechMenu"}) {
    table.set(key, std::string("«") + key + "»");
  }
  Texts texts;
  texts.overlay(table);
  return texts;
}

TEST(MenuRules, letStylesTravelOnlyWhileTheStylePaneIsShown) {
  const Texts texts = translated();
  for (const char* title : {"«StyleExportMenu»", "«StyleInportMenu»"}) {
    EXPECT_TRUE(stylePaneAllows(title, "StyleManager", texts));
    EXPECT_FALSE(stylePaneAllows(title, "OA", texts));
    EXPECT_FALSE(stylePaneAllows(title, "", texts));
  }
  for (const char* pane : {"StyleManager", "OA", ""}) EXPECT_TRUE(stylePaneAllows("Quit", pane, texts));
}

TEST(MenuRules, leaveOnlyTheHelpEntriesWhileASheetIsOpen) {
  const Texts texts = translated();
  ProcessFlags flags;
  flags.gMenuControllFlag = true;
  for (const char* title : {"«appHelp»", "«whHelp»", "«supportHelp»"})
    EXPECT_TRUE(mainWindowAllows(title, flags, texts));
  for (const char* title : {"«oldEJTechMenu»", "Quit", "appHelp"}) EXPECT_FALSE(mainWindowAllows(title, flags, texts));
  flags.gMenuControllFlag = false;
  for (const char* title : {"«oldEJTechMenu»", "Quit", "appHelp"}) EXPECT_TRUE(mainWindowAllows(title, flags, texts));
}

}  // namespace
}  // namespace tarvo
