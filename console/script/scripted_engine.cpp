// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/scripted_engine.h"

#include <utility>

namespace tarvo {

void ScriptedEngine::queueProbes(const std::deque<bool>& answers) {
  probes_.insert(probes_.end(), answers.begin(), answers.end());
}

void ScriptedEngine::hold(Array styles, std::string stamp) {
  styles_ = std::move(styles);
  stamp_ = std::move(stamp);
  holds_ = true;
}

bool ScriptedEngine::checkConnectionWithCurl() {
  if (probes_.empty()) return online_;
  const bool answer = probes_.front();
  probes_.pop_front();
  return answer;
}

void ScriptedEngine::sendRegistStyle(const StyleSet& styles, std::string& updateString) {
  std::string stamp(1, 'U');
  stamp += std::to_string(++registrations_);
  hold(styles.records, std::move(stamp));
  updateString = stamp_;
}

bool ScriptedEngine::requestStyle(Array& styles, std::string& localUpdate) {
  if (!holds_ || localUpdate == stamp_) return false;
  styles = styles_;
  localUpdate = stamp_;
  return true;
}

}  // namespace tarvo
