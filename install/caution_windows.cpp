// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/caution_windows.h"

#include "install/addin_outlets.h"
#include "platform/controls/windows.h"
#include "platform/services/opener.h"
#include "platform/services/system_version.h"

namespace tarvo {

Window& CautionWindows::mailCaution() const {
  return systemVersion(files_, locations_) < 106 ? outlets_.alertWindow : outlets_.alertWindowSL;
}

void CautionWindows::mailButtonAction() { windows_.orderFront(mailCaution()); }
void CautionWindows::closeCautionWindow() { windows_.orderOut(mailCaution()); }
void CautionWindows::selectPowerPoint() { windows_.orderFront(outlets_.alertPowerPoint); }
void CautionWindows::closePowerPoint() { windows_.orderOut(outlets_.alertPowerPoint); }
void CautionWindows::launchAppleScriptEditor() { opener_.launchApplication("AppleScript Editor.app"); }
void CautionWindows::launchAppleScriptUtil() { opener_.launchApplication("AppleScript Utility.app"); }

}  // namespace tarvo
