// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "app/window_geometry.h"
#include "platform/engine.h"
#include "platform/panels.h"
#include "platform/run_loop.h"
#include "platform/style_module.h"
#include "platform/windows.h"
#include "platform/workspace.h"

// A shell and an engine that only note what they are asked, one word a call, in the order of the calls.
namespace tarvo::test {

using Log = std::vector<std::string>;

class FakePanels : public Panels {
 public:
  explicit FakePanels(Log& log) : log_(log) {}
  void beep() override { log_.push_back("beep"); }
  int runAlertPanel(const Alert& alert) override {
    alerts.push_back(alert);
    log_.push_back("alert " + alert.title + " / " + alert.message);
    return 0;
  }
  void beginAlertSheet(Window&, const Alert& alert, std::function<void(int)>) override { runAlertPanel(alert); }
  std::optional<std::string> runOpenPanel(const OpenPanel& panel) override {
    openPanels.push_back(panel);
    return openAnswer;
  }
  void beginSavePanel(Window&, const SavePanel&, std::function<void(int, const std::string&)>) override {}
  std::vector<Alert> alerts;
  std::vector<OpenPanel> openPanels;
  std::optional<std::string> openAnswer;  // nothing: cancelled

 private:
  Log& log_;
};

class FakeHost : public WindowHost {
 public:
  void show(Window&) override {}
  void hide(Window&) override {}
  void applyFrame(Window&, bool) override {}
  void runModal(Window& window) override {
    if (whileModal) whileModal(window);
  }
  void stopModal(Window&) override { ++stops; }
  WindowHeights heights(const Window& window) override {
    const float content = window.frame().height - titleBar;
    return {true, toolbarHidden, content, content + titleBar, content - (toolbarHidden ? 0.0F : toolbar)};
  }
  Size paneSize(int pane) override { return paneSizes[static_cast<std::size_t>(pane)]; }
  Rect mainScreen() override { return screen; }

  static constexpr float titleBar = 22, toolbar = 56;
  bool toolbarHidden = false;
  Rect screen{0, 0, 1440, 900};
  std::function<void(Window&)> whileModal;
  int stops = 0;
};

class FakeWorkspace : public Workspace {
 public:
  void openFile(const std::string& path) override { opened.push_back(path); }
  void openAddress(const std::string&) override {}
  void launchApplication(const std::string& name) override { launched.push_back(name); }
  std::vector<std::string> launchedApplications() override { return running; }
  std::vector<std::string> opened, launched, running;
};

class FakeRunLoop : public RunLoop {
 public:
  void post(std::function<void()> call) override { call(); }
  Timer after(double, std::function<void()>) override { return 0; }
  void cancel(Timer) override {}
};

// Registrations get the stamps U1, U2, … as long as it is online.
class FakeEngine : public Engine {
 public:
  explicit FakeEngine(Log& log) : log_(log) {}
  bool checkConnectionWithCurl() override {
    log_.push_back(online ? "reachable" : "unreachable");
    return online;
  }
  void sendRegistStyle(const StyleSet& styles, std::string& updateString) override {
    log_.push_back("register " + std::to_string(styles.records.size()));
    registered = styles.records;
    encoded.assign(styles.encoded.begin(), styles.encoded.end());
    updateString = "U" + std::to_string(++count_);
  }
  bool checkStyle() override { return false; }
  bool requestStyle(Array&, std::string&) override { return false; }
  bool online = false;
  Array registered;
  std::vector<std::string> encoded;

 private:
  Log& log_;
  int count_ = 0;
};

class FakeStyleModule : public StyleModule {
 public:
  explicit FakeStyleModule(Log& log) : log_(log) {}
  void tarvoStyleInitialize() override { log_.push_back("tarvoStyleInitialize"); }
  void tarvoStyleSetTStyleUrl(const std::string& path) override { log_.push_back("tarvoStyleSetTStyleUrl " + path); }
  void tarvoStyleSetTechDictUrl(const std::string& english, const std::string& japanese) override {
    log_.push_back("tarvoStyleSetTechDictUrl " + english + " " + japanese);
  }
  void tarvoStyleSetUserDictUrl(const std::string& folder) override {
    log_.push_back("tarvoStyleSetUserDictUrl " + folder);
  }

 private:
  Log& log_;
};

}  // namespace tarvo::test
