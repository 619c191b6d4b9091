// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "app/app_controller.h"
#include "app/covering_panels.h"
#include "app/interface.h"
#include "app/request_queue.h"
#include "app/rooms.h"
#include "app/services.h"
#include "app/style_file_opening.h"
#include "app/t_manager_controller.h"
#include "app/user_files.h"
#include "platform/controls/windows.h"
#include "platform/services/notification_center.h"
#include "platform/services/user_defaults.h"

// The running program: it owns the controls, the rooms and both controllers, and brings them up and down in order.
namespace tarvo {

class Program {
 public:
  explicit Program(const Services& given);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  // The three steps of a start. False: the program has to end; the further steps are left out.
  bool construct();  // both controllers, the main one first
  bool load();       // both receive their controls, the style pane first
  void launch();     // the window comes up
  bool start();      // all three

  // The user wants the program to end, who is asked first where the styles could not be saved (quit_question.h), if
  // anybody is there to answer. Its owner says so once it is up.
  void userQuits();
  bool hasUser = false;
  // Ends the program: what has to be stored is stored, once, if the main controller was ready for it.
  void quit();
  bool isTerminated() const { return terminated_; }
  std::function<void()> didTerminate;  // told once
  std::function<void()> didShow;       // told once the window is up, before the launch goes on

  Interface& interface() { return interface_; }
  Rooms& rooms() { return rooms_; }
  AppController& styles() { return styles_; }
  TManagerController& manager() { return manager_; }
  UserDefaults& defaults() { return defaults_; }
  NotificationCenter& notifications() { return notifications_; }
  Windows& windows() { return windows_; }
  RequestQueue& requests() { return requests_; }
  const Services& services() const { return services_; }

 private:
  void tellUnreadSettings();
  void tellUnwrittenSettings(const Failure& why);
  Windows windows_;
  CoveringPanels panels_;
  Services services_;
  UserDefaults defaults_;
  NotificationCenter notifications_;
  Interface interface_;
  Rooms rooms_;
  TManagerController manager_;
  AppController styles_;
  StyleFileOpening opening_;
  RequestQueue requests_;
  bool managerAwake_ = false, terminated_ = false;
};

}  // namespace tarvo
