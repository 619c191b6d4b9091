// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/pane_alerts.h"

#include <gtest/gtest.h>

#include "platform/services/texts.h"
#include "tests/support/fake_shell.h"

namespace tarvo::test {
namespace {

class PaneAlertsTest : public testing::Test {
 protected:
  PaneAlertsTest() {
    Dictionary table;
    for (const char* key : {"AlertClose", "MaxOverTDAlertHeader", "MaxOverTDAlertContents", "MaxOverUDAlertHeader",
                            "MaxOverUDAlertContents", "MaxOverUTMAAlertHeader", "h"}) {
      table.set(key, "«" + std::string(key) + "»");
    }
    texts_.overlay(table);
  }
  Log log_;
  FakePanels panels_{log_};
  Texts texts_;
  PaneAlerts alerts_{panels_, texts_};
};

TEST_F(PaneAlertsTest, aGivenTextIsShownAsItIsWithoutABeep) {
  alerts_.runAlertWithText("h", "m");
  EXPECT_EQ(log_, Log{"alert h / m"});
  EXPECT_EQ(panels_.alerts.at(0).buttons, std::vector<std::string>{"«AlertClose»"});
}

TEST_F(PaneAlertsTest, aFullListIsToldByItsKindAfterABeep) {
  alerts_.openMaxOverAlert(DictionaryKind::technical);
  alerts_.openMaxOverAlert(DictionaryKind::user);
  alerts_.openMaxOverAlert(DictionaryKind::memory);
  EXPECT_EQ(log_, (Log{"beep", "alert «MaxOverTDAlertHeader» / «MaxOverTDAlertContents»", "beep",
                       "alert «MaxOverUDAlertHeader» / «MaxOverUDAlertContents»", "beep",
                       "alert «MaxOverUTMAAlertHeader» / MaxOverUTMAAlertContents"}));
  for (const Alert& alert : panels_.alerts) EXPECT_EQ(alert.buttons, std::vector<std::string>{"«AlertClose»"});
}

}  // namespace
}  // namespace tarvo::test
