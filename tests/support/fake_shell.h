// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/panes.h"
#include "platform/controls/windows.h"
#include "platform/services/engine.h"
#include "platform/services/panels.h"
#include "platform/services/run_loop.h"
#include "platform/services/style_module.h"
#include "platform/services/workspace.h"

// A shell and an engine that only note what they are asked, one word a call, in the order of the calls.
namespace tarvo::test {

using Log = std::vector<std::string>;

// Alerts take the answers queued for them, else the default button; an open panel without one is cancelled. Alert
// sheets and save panels stay up until the test ends them.
class FakePanels : public Panels {
 public:
  explicit FakePanels(Log& log) : log_(log) {}
  void beep() override { log_.emplace_back("beep"); }
  void tell(const std::string& text) override { told.push_back(text); }
  int runAlertPanel(const Alert& alert) override {
    alerts.push_back(alert);
    log_.push_back("alert " + alert.title + " / " + alert.message);
    if (whileUp) whileUp();
    return next(buttons).value_or(0);
  }
  void beginAlertSheet(Window& host, const Alert& alert, std::function<void(int)> ended) override {
    alerts.push_back(alert);
    log_.push_back("alert " + alert.title + " / " + alert.message);
    sheetHost = &host;
    endAlertSheet = std::move(ended);
  }
  std::optional<DiskPath> runOpenPanel(const OpenPanel& panel) override {
    opens.push_back(panel);
    log_.emplace_back("open panel");
    if (whileUp) whileUp();
    const std::optional<std::string> answer = next(paths);
    return answer ? std::optional(DiskPath(*answer)) : std::nullopt;
  }
  void beginSavePanel(Window& host, const SavePanel& panel, std::function<void(int, const DiskPath&)> ended) override {
    saves.push_back(panel);
    log_.emplace_back("save panel");
    sheetHost = &host;
    endSavePanel = [ended = std::move(ended)](int code, const std::string& path) { ended(code, DiskPath(path)); };
  }
  std::vector<std::string> told;  // not among what was asked
  std::vector<Alert> alerts;
  std::vector<OpenPanel> opens;
  std::vector<SavePanel> saves;
  std::deque<int> buttons;
  std::deque<std::string> paths;
  std::function<void()> whileUp;  // runs while an alert or an open panel blocks
  const Window* sheetHost = nullptr;
  std::function<void(int)> endAlertSheet;
  std::function<void(int, const std::string&)> endSavePanel;

 private:
  template <class T>
  static std::optional<T> next(std::deque<T>& queue) {
    if (queue.empty()) return std::nullopt;
    T first = std::move(queue.front());
    queue.pop_front();
    return first;
  }
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
  Size paneSize(Pane pane) override { return rowOf(pane).size; }
  Rect mainScreen() override { return screen; }

  static constexpr float titleBar = 22, toolbar = 56;
  bool toolbarHidden = false;
  Rect screen{0, 0, 1440, 900};
  std::function<void(Window&)> whileModal;
  int stops = 0;
};

class FakeWorkspace : public Workspace {
 public:
  Result<> openFile(const DiskPath& path) override { return answerFor(opened, path.text(), Attempt::open); }
  Result<> openAddress(const std::string& address) override { return answerFor(addresses, address, Attempt::open); }
  Result<> launchApplication(const std::string& name) override { return answerFor(launched, name, Attempt::start); }
  std::vector<ProductPath> launchedApplications() override { return {running.begin(), running.end()}; }
  std::vector<std::string> opened, addresses, launched, running;
  bool refuses = false;  // what is asked of it, which it notes all the same

 private:
  Result<> answerFor(std::vector<std::string>& asked, const std::string& what, Attempt attempt) const {
    asked.push_back(what);
    if (refuses) return Failure{what, attempt, Reason::noProgram};
    return {};
  }
};

// Posted calls run at once unless they are held until run(). Timers fire by hand, in the order of their times.
class FakeRunLoop : public RunLoop {
 public:
  void post(std::function<void()> call) override { holds ? posted_.push_back(std::move(call)) : call(); }
  Timer after(double seconds, std::function<void()> call) override {
    timers_.emplace(now_ + seconds, std::pair(++lastTimer_, std::move(call)));
    return lastTimer_;
  }
  void cancel(Timer timer) override {
    std::erase_if(timers_, [timer](const auto& entry) { return entry.second.first == timer; });
  }
  // Runs what was posted, and what that posts.
  void run() {
    while (!posted_.empty()) {
      const auto call = std::move(posted_.front());
      posted_.pop_front();
      call();
    }
  }
  void advance(double seconds) {
    now_ += seconds;
    while (!timers_.empty() && timers_.begin()->first <= now_) {
      const auto call = std::move(timers_.begin()->second.second);
      timers_.erase(timers_.begin());
      call();
    }
  }
  std::size_t timers() const { return timers_.size(); }
  std::size_t posted() const { return posted_.size(); }
  bool holds = false;

 private:
  std::deque<std::function<void()>> posted_;
  std::multimap<double, std::pair<Timer, std::function<void()>>> timers_;
  double now_ = 0;
  Timer lastTimer_ = 0;
};

// Registrations get the stamps U1, U2, …, reachable or not; what it holds is newer than any stamp while isNewer is set.
class FakeEngine : public Engine {
 public:
  explicit FakeEngine(Log& log) : log_(log) {}
  bool checkConnectionWithCurl() override {
    bool answer = online;
    if (!probes.empty()) {
      answer = probes.front();
      probes.pop_front();
    }
    log_.emplace_back(answer ? "reachable" : "unreachable");
    return answer;
  }
  void sendRegistStyle(const StyleSet& styles, std::string& updateString) override {
    log_.push_back("register " + std::to_string(styles.records.size()));
    stampsHandedIn.push_back(updateString);
    registered = styles.records;
    encoded.assign(styles.encoded.begin(), styles.encoded.end());
    updateString = answersStamp ? "U" + std::to_string(++count_) : "";
  }
  bool checkStyle() override {
    log_.emplace_back(holds ? "holds" : "holds none");
    return holds;
  }
  bool requestStyle(Array& styles, std::string& localUpdate) override {
    log_.push_back("request \"" + localUpdate + '"');
    styles = held;
    localUpdate = heldStamp;
    return isNewer;
  }
  bool online = false, holds = false, isNewer = false, answersStamp = true;
  std::deque<bool> probes;  // answered before online counts
  Array held, registered;
  std::string heldStamp;
  std::vector<std::string> encoded, stampsHandedIn;

 private:
  Log& log_;
  int count_ = 0;
};

class FakeStyleModule : public StyleModule {
 public:
  explicit FakeStyleModule(Log& log) : log_(log) {}
  void tarvoStyleInitialize() override { log_.emplace_back("tarvoStyleInitialize"); }
  void tarvoStyleSetTStyleUrl(const DiskPath& path) override {
    log_.push_back("tarvoStyleSetTStyleUrl " + path.text());
  }
  void tarvoStyleSetTechDictUrl(const DiskPath& english, const DiskPath& japanese) override {
    log_.push_back("tarvoStyleSetTechDictUrl " + english.text() + " " + japanese.text());
  }
  void tarvoStyleSetUserDictUrl(const DiskPath& folder) override {
    log_.push_back("tarvoStyleSetUserDictUrl " + folder.text());
  }

 private:
  Log& log_;
};

}  // namespace tarvo::test
