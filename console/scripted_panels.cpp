// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/scripted_panels.h"

#include "console/recorder.h"
#include "console/scenario_shell.h"

namespace tarvo {

void ScriptedPanels::beep() { recorder_.note({{"beep", true}}); }

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

std::optional<std::string> ScriptedPanels::runOpenPanel(const OpenPanel& panel) {
  fail("nothing answers the open panel \"" + panel.title + '"');
  return std::nullopt;
}

void ScriptedPanels::beginSavePanel(Window&, const SavePanel& panel,
                                    std::function<void(int code, const std::string& path)> handler) {
  fail("nothing answers the save panel \"" + panel.title + '"');
  handler(0, "");
}

}  // namespace tarvo
