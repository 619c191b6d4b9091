// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/controls/controls.h"
#include "platform/controls/windows.h"
#include "platform/services/run_loop.h"

// The question, once at every launch, whether the program may talk to the engine's service.
// Duty: probe, ask, remember the answer as "ConnectServer", and post "SendPlistNoti". Not: handing over styles.
namespace tarvo {

class Engine;
class NotificationCenter;
class Panels;
class Texts;
class UserDefaults;

struct ConnectionOutlets : Outlets {
  Window sslPanel{*this, "sslPanel"};
  TextField sslText{*this, "sslText", Control::Kind::text};
  CheckBox sslCheck{*this, "sslCheck"};  // do not ask at the next launch
  Button sslOKButton{*this, "sslOKButton"};
  ConnectionOutlets() : Outlets("manager") {}
};

class ConnectionCheck {
 public:
  // Who works together here. Not owned.
  struct Collaborators {
    ConnectionOutlets& outlets;
    Window& myWindow;  // the main window
    Engine& engine;
    UserDefaults& defaults;
    NotificationCenter& notifications;
    Panels& panels;
    RunLoop& runLoop;
    Windows& windows;
    const Texts& texts;
  };
  explicit ConnectionCheck(const Collaborators& with) : with_(with) {}
  ~ConnectionCheck();
  ConnectionCheck(const ConnectionCheck&) = delete;
  ConnectionCheck& operator=(const ConnectionCheck&) = delete;

  // The whole check: the last step of the launch. While a sheet is up over the window it begins a little later.
  void checkConnection();
  // Asks for the confirmation in a sheet; while another sheet is up it asks a little later.
  void confirmView();
  // Whether the launch waits for an answer: from its first question to its last one.
  bool isAsking() const { return asking_; }
  std::function<void()> didEndAsking;  // told at the end of it, before styles are exchanged
  // The confirmation. Whatever the box says, styles are exchanged now; it only decides about the next launch.
  void actionPanel();

 private:
  void connectSheetDidEnd(int returnCode);
  void sslSheetDidEnd(int returnCode);
  bool isWindowFree() const;
  void later(void (ConnectionCheck::*step)());
  void endAsking();
  Collaborators with_;
  RunLoop::Timer timer_ = 0;
  bool asking_ = false;
};

}  // namespace tarvo
