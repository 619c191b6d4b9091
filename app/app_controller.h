// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "app/services.h"

// The controller of the style pane.
// Duty: start the pane, and run the sequences that cross rooms: loading, choosing a style, choosing a tool.
// Not: anything that one room can do alone.
namespace tarvo {

class Interface;
class NotificationCenter;
class UserDefaults;
struct Rooms;

class AppController {
 public:
  // terminate: asks the program to end; the sequence that asked stops at once.
  AppController(Interface& interface, Rooms& rooms, const Services& services, UserDefaults& defaults,
                NotificationCenter& notifications, std::function<void()> terminate);
  ~AppController();
  AppController(const AppController&) = delete;
  AppController& operator=(const AppController&) = delete;

  void init();

  // False: start-up failed and the program ends.
  bool awakeFromNib();
  // Action of the style menu; also run by the choice of a tool.
  void changeStyle();
  void selectTableViewAction(int toolIndex);
  int getOSVersion() const;
  void quitAction() { terminate_(); }
  // Makes the lists of user dictionaries and memories; a caller may leave it out before awakeFromNib.
  bool setsUpUserLists = true;

 private:
  bool loadUserInfor();
  bool makePreferencesFolder();
  void tellThatNothingCanBeDone();
  void createDictControllers();
  void restoreTool();
  void showFirstPages();

  Interface& interface_;
  Rooms& rooms_;
  Services services_;
  UserDefaults& defaults_;
  NotificationCenter& notifications_;
  std::function<void()> terminate_;
};

}  // namespace tarvo
