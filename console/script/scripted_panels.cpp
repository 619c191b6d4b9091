// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/scripted_panels.h"

#include <algorithm>
#include <iostream>
#include <utility>

#include "console/script/recorder.h"
#include "console/script/scenario_shell.h"
#include "platform/text/printable.h"
#include "platform/text/text_rules.h"

namespace tarvo {

void ScriptedPanels::beep() { recorder_.note({{"beep", true}}); }

void ScriptedPanels::tell(const std::string& text) {
  std::cerr << "tarvoctl: " << printable(recorder_.shownIn(text)) << '\n';
}

void ScriptedPanels::fail(std::string reason) {
  if (failure_.empty()) failure_ = std::move(reason);
}

int ScriptedPanels::nextAnswer(const Alert& alert, const Window* host) {
  int button = 0;
  if (!alerts_.empty()) {
    button = alerts_.front();
    alerts_.pop_front();
  }
  if (button < 0 || button >= static_cast<int>(alert.buttons.size())) {
    fail("the alert has no button " + std::to_string(button + 1));
    button = 0;
  }
  Json::Object event{{"title", alert.title},
                     {"message", alert.message},
                     {"buttons", Json::List(alert.buttons.begin(), alert.buttons.end())},
                     {"answer", button + 1}};
  if (host != nullptr) event.emplace("over", host->name());
  recorder_.note({{"alert", std::move(event)}});
  return button;
}

int ScriptedPanels::runAlertPanel(const Alert& alert) {
  const int button = nextAnswer(alert, nullptr);
  ++alertsUp_;
  const int pressed = shell_.runAlert(alert, button);
  --alertsUp_;
  return pressed;
}

void ScriptedPanels::beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> handler) {
  const int button = nextAnswer(alert, &host);
  ++alertsUp_;
  shell_.beginAlertSheet(host, alert, button, [this, handler = std::move(handler)](int pressed) {
    --alertsUp_;
    handler(pressed);
  });
}

void ScriptedPanels::answerOpen(DiskPath path) { files_.push_back({Kind::open, std::move(path)}); }

void ScriptedPanels::answerSave(DiskPath path) {
  if (!up_.empty()) return endSavePanel(std::move(path));
  files_.push_back({Kind::save, std::move(path)});
}

void ScriptedPanels::answerCancel() {
  if (!up_.empty()) return endSavePanel(std::nullopt);
  files_.push_back({std::nullopt, std::nullopt});
}

std::optional<ScriptedPanels::FileAnswer> ScriptedPanels::takeAnswer(Kind kind) {
  const auto found = std::find_if(files_.begin(), files_.end(),
                                  [kind](const FileAnswer& answer) { return answer.kind.value_or(kind) == kind; });
  if (found == files_.end()) return std::nullopt;
  FileAnswer answer = std::move(*found);
  files_.erase(found);
  return answer;
}

Json ScriptedPanels::shown(const std::optional<DiskPath>& path) const {
  return path ? Json(recorder_.shown(*path)) : Json();
}

std::optional<DiskPath> ScriptedPanels::runOpenPanel(const OpenPanel& panel) {
  const std::optional<FileAnswer> answer = takeAnswer(Kind::open);
  if (!answer) {
    fail("nothing answers the open panel \"" + panel.title + '"');
    return std::nullopt;
  }
  Json::Object event{{"kind", panel.foldersOnly ? "folder" : "open"}, {"answer", shown(answer->path)}};
  if (!panel.title.empty()) event.emplace("title", panel.title);
  if (!panel.types.empty()) event.emplace("types", Json::List(panel.types.begin(), panel.types.end()));
  recorder_.note({{"panel", std::move(event)}});
  return answer->path;
}

void ScriptedPanels::beginSavePanel(Window& host, const SavePanel& panel,
                                    std::function<void(int code, const DiskPath& path)> handler) {
  std::optional<FileAnswer> answer = takeAnswer(Kind::save);
  if (answer && answer->path) answer->path = DiskPath(withPathExtension(answer->path->text(), panel.requiredType));
  Json::Object event{{"kind", "save"}, {"over", host.name()}};
  if (answer) event.emplace("answer", shown(answer->path));
  if (!panel.title.empty()) event.emplace("title", panel.title);
  if (!panel.requiredType.empty()) event.emplace("types", Json::List{panel.requiredType});
  if (!panel.folder.empty()) event.emplace("folder", recorder_.shown(panel.folder));
  if (!panel.name.empty()) event.emplace("name", panel.name);
  recorder_.note({{"panel", std::move(event)}});
  if (answer) return handler(answer->path ? 1 : 0, answer->path.value_or(DiskPath()));
  up_.push_back({panel.requiredType, std::move(handler)});
}

void ScriptedPanels::endSavePanel(std::optional<DiskPath> path) {
  const UpPanel ended = std::move(up_.back());
  up_.pop_back();
  if (path) path = DiskPath(withPathExtension(path->text(), ended.requiredType));
  recorder_.note({{"panelEnded", "save"}, {"answer", shown(path)}});
  ended.handler(path ? 1 : 0, path.value_or(DiskPath()));
}

}  // namespace tarvo
