// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "platform/plist/json.h"
#include "platform/services/panels.h"

namespace tarvo {

class Recorder;
class ScenarioShell;

// Alerts and panels whose answers the script has queued. An alert without an answer is answered by its default button.
// A save panel takes a queued answer at once, else it stays up as a sheet until the script answers it. An open panel
// that no line answers, and an answer that names no button, fail the script: see failure().
class ScriptedPanels : public Panels {
 public:
  ScriptedPanels(Recorder& recorder, ScenarioShell& shell) : recorder_(recorder), shell_(shell) {}
  void answerAlert(int button) { alerts_.push_back(button); }  // 0 the first
  void answerOpen(DiskPath path);
  // For the save panel that came up last, else for the next one. The panel adds its type to a path that lacks it.
  void answerSave(DiskPath path);
  // For the save panel that came up last, else for the next open or save panel.
  void answerCancel();
  bool hasAnswers() const { return !alerts_.empty() || !files_.empty(); }
  bool isAlertUp() const { return alertsUp_ > 0; }
  void dropSavePanels() { up_.clear(); }                   // their program is gone
  const std::string& failure() const { return failure_; }  // the first one, "" without

  void beep() override;
  void tell(const std::string& text) override;
  int runAlertPanel(const Alert& alert) override;
  void beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> handler) override;
  std::optional<DiskPath> runOpenPanel(const OpenPanel& panel) override;
  void beginSavePanel(Window& host, const SavePanel& panel,
                      std::function<void(int code, const DiskPath& path)> handler) override;

 private:
  enum class Kind { open, save };
  struct FileAnswer {
    std::optional<Kind> kind;      // nothing: either
    std::optional<DiskPath> path;  // nothing: cancelled
  };
  struct UpPanel {
    std::string requiredType;
    std::function<void(int code, const DiskPath& path)> handler;
  };
  int nextAnswer(const Alert& alert, const Window* host);
  std::optional<FileAnswer> takeAnswer(Kind kind);
  void endSavePanel(std::optional<DiskPath> path);
  Json shown(const std::optional<DiskPath>& path) const;
  void fail(std::string reason);
  Recorder& recorder_;
  ScenarioShell& shell_;
  std::deque<int> alerts_;
  std::deque<FileAnswer> files_;
  std::vector<UpPanel> up_;  // in the order in which they came up
  std::string failure_;
  int alertsUp_ = 0;
};

}  // namespace tarvo
