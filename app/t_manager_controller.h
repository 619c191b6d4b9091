// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "app/screen_caution.h"
#include "app/services.h"
#include "platform/controls/pane.h"

// The main controller: the window, its toolbar and panes.
// Duty: start the product's modules, build the toolbar, restore and keep the window's place and pane, quit in order.
// Not: what the panes hold.
namespace tarvo {

class Control;
class Interface;
class NotificationCenter;
class UserDefaults;
class Windows;
struct Rooms;

class TManagerController {
 public:
  TManagerController(Interface& interface, Rooms& rooms, const Services& services, UserDefaults& defaults,
                     NotificationCenter& notifications, Windows& windows, std::function<void()> terminate);
  ~TManagerController();
  TManagerController(const TManagerController&) = delete;
  TManagerController& operator=(const TManagerController&) = delete;

  // False: the product's modules could not be started, or there is no list of applications that take add-ins; the
  // program ends and nothing was stored.
  bool init();
  void awakeFromNib();
  void applicationDidFinishLaunching();
  void applicationWillTerminate();

  // Shows the pane of a toolbar item, known by the item's tag.
  void selectToolbarAction(Control& item);
  // Shows a pane by menu tag or notification, then marks its toolbar item. Nothing for a tag that no pane has.
  void selectToolbarActionforMenu(int tag);
  void changeToolbar() { bringForward(Pane::style); }
  void changeOfficeToolbar() { bringForward(Pane::office); }
  void windowDidMove();
  void toggleToolbar();
  void showAbout();
  void closeWindow() { terminate_(); }
  int getOSVersion() const;
  bool allowsMenuItem(std::string_view title) const;
  ScreenCaution& screenCaution() { return caution_; }

  std::function<void()> customizeToolbar;  // the shell's, when it has a way to

 private:
  bool startModules();
  void tellModuleFailure(int code);
  void buildToolbar();
  void adaptToToolbar();
  void keepToolbar();
  void restoreFrame();
  void restorePane();
  void showPane(Pane pane);
  void bringForward(Pane pane);
  Pane shownPane() const;

  Interface& interface_;
  Rooms& rooms_;
  const Services& services_;
  UserDefaults& defaults_;
  NotificationCenter& notifications_;
  Windows& windows_;
  std::function<void()> terminate_;
  ScreenCaution caution_;
  bool modulesStarted_ = false;
};

}  // namespace tarvo
