// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/product.h"
#include "app/program.h"
#include "qt/bind/binder.h"
#include "qt/services/bus_service.h"
#include "qt/services/qt_run_loop.h"
#include "qt/services/qt_workspace.h"
#include "qt/window/qt_panels.h"
#include "qt/window/qt_windows.h"

class QApplication;

namespace tarvo {

// The three panes by tag.
std::vector<PageBuilder> paneBuilders(Interface& interface, Binder& binder);

// The program in its window.
// Duty: bring up the desktop's services, the program and its window in order, and take them down again. Not: the
// command line, the lock. The windows are made after the program's construction and die before it.
class Shell {
 public:
  // running: the application bundles that run now. Product and application outlive the shell.
  Shell(Product& product, QApplication& application, std::function<std::vector<ProductPath>()> running);
  ~Shell();
  Shell(const Shell&) = delete;
  Shell& operator=(const Shell&) = delete;

  // Takes requests from the session bus and, with openFiles, from this start; they wait for the end of the launch.
  void listen(const BusIdentity& identity);
  // One style file is opened at a time: further ones are refused with a beep.
  void openFiles(const std::vector<std::string>& paths, RequestPlace place = nullptr);
  // False: the program has ended instead.
  bool start();
  // Runs until the program ends; whoever sits before it is asked what quitting would lose.
  void run();
  // The desktop's session is about to end: quitting asks nobody. Where the session goes on after all it does again,
  // after a while.
  void sessionEnds();

  Program& program() { return program_; }
  QtWindows& windows() { return windows_; }
  Registry& registry() { return binder_.registry(); }

 private:
  void customizeToolbar();
  void finishLater();
  Product& product_;
  QApplication& application_;
  std::unique_ptr<Engine> engine_;
  QtRunLoop runLoop_;
  QtWindows windows_;
  QtPanels panels_;
  QtWorkspace workspace_;
  Program program_;
  Binder binder_;
  std::optional<BusService> bus_;
};

}  // namespace tarvo
