// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

class UserDefaults;
class Windows;
struct ManagerOutlets;

// The caution on small screens. It is shown only once its setting exists and is off: users who never saw it are not
// asked.
class ScreenCaution {
 public:
  ScreenCaution(ManagerOutlets& outlets, UserDefaults& defaults, Windows& windows)
      : outlets_(outlets), defaults_(defaults), windows_(windows) {}
  void checkScreenSize();
  // Stores the check box and ends the caution's run.
  void closeCautionDisplayWindow();

 private:
  ManagerOutlets& outlets_;
  UserDefaults& defaults_;
  Windows& windows_;
};

}  // namespace tarvo
