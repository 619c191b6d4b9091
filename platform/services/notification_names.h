// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

// What is posted through the notification center.
inline constexpr const char* newDicNotification = "newDicNotification";  // its object: the file name to be made
inline constexpr const char* sendPlistNoti = "SendPlistNoti";  // the styles and the engine's are to be made one
inline constexpr const char* changeToolbarNotification = "ChangeToolbar";              // the style pane is to be shown
inline constexpr const char* changeOfficeToolbarNotification = "ChangeOfficeToolbar";  // the Office pane is

}  // namespace tarvo
