// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>

#include "platform/panels.h"

namespace tarvo {

class Recorder;
class ScenarioShell;

// Alerts and panels whose answers the script has queued. An alert without an answer is answered by its default button.
// A file panel that no line answers, and an answer that names no button, fail the script: see failure().
class ScriptedPanels : public Panels {
 public:
  ScriptedPanels(Recorder& recorder, ScenarioShell& shell) : recorder_(recorder), shell_(shell) {}
  void answerAlert(int button) { alerts_.push_back(button); }  // 0 the first
  bool hasAnswers() const { return !alerts_.empty(); }
  bool isAlertUp() const { return alertsUp_ > 0; }
  const std::string& failure() const { return failure_; }  // the first one, "" without

  void beep() override;
  int runAlertPanel(const Alert& alert) override;
  void beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> handler) override;
  std::optional<std::string> runOpenPanel(const OpenPanel& panel) override;
  void beginSavePanel(Window& host, const SavePanel& panel,
                      std::function<void(int code, const std::string& path)> handler) override;

 private:
  int nextAnswer(const Alert& alert, const Window* host);
  void fail(std::string reason);
  Recorder& recorder_;
  ScenarioShell& shell_;
  std::deque<int> alerts_;
  std::string failure_;
  int alertsUp_ = 0;
};

}  // namespace tarvo
