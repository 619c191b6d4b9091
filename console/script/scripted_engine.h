// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>
#include <string>

#include "platform/services/engine.h"

namespace tarvo {

// The engine as a script sets it up: starts unreachable and empty. It is newer than a stamp exactly when it holds a set
// and its stamp differs. A registration becomes the held set, with the stamps U1, U2, …
class ScriptedEngine : public Engine {
 public:
  void setOnline(bool online) { online_ = online; }
  void queueProbes(const std::deque<bool>& answers);  // the next answers of the reachability test
  void hold(Array styles, std::string stamp);
  void holdNothing() { holds_ = false; }

  bool checkConnectionWithCurl() override;
  void sendRegistStyle(const StyleSet& styles, std::string& updateString) override;
  bool checkStyle() override { return holds_; }
  bool requestStyle(Array& styles, std::string& localUpdate) override;

 private:
  std::deque<bool> probes_;
  Array styles_;
  std::string stamp_;
  bool online_ = false, holds_ = false;
  int registrations_ = 0;
};

}  // namespace tarvo
