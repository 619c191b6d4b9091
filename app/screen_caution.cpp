// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/screen_caution.h"

#include "app/interface.h"
#include "platform/controls/windows.h"
#include "platform/services/user_defaults.h"

namespace tarvo {

namespace {
constexpr const char* noDialogState = "NoDialogState";
constexpr int widestSmallScreen = 1023;
}  // namespace

void ScreenCaution::checkScreenSize() {
  if (static_cast<int>(windows_.host().mainScreen().width) > widestSmallScreen) return;
  const PropertyList* stored = defaults_.find(noDialogState);
  if (stored == nullptr) return;
  outlets_.noDisplayDialogCheckBox.setState(stored->integerValue() != 0);
  if (outlets_.noDisplayDialogCheckBox.state()) return;
  windows_.runModalForWindow(outlets_.displayAlertWindow);
  windows_.orderOut(outlets_.displayAlertWindow);
}

void ScreenCaution::closeCautionDisplayWindow() {
  defaults_.set(noDialogState, outlets_.noDisplayDialogCheckBox.state() ? 1 : 0);
  defaults_.synchronize();
  windows_.stopModal();
}

}  // namespace tarvo
