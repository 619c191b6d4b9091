// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/engine.h"

namespace tarvo {

// No engine: never reachable, holds nothing, takes nothing.
class EngineNone : public Engine {
 public:
  bool checkConnectionWithCurl() override;
  void sendRegistStyle(const StyleSet& styles, std::string& updateString) override;
  bool checkStyle() override;
  bool requestStyle(Array& styles, std::string& localUpdate) override;
  EngineForm form() const override { return EngineForm::none; }
  Result<> couldReach() const override { return Failure{"", Attempt::reach, Reason::noService}; }
  Result<> didRegister() const override { return Failure{"", Attempt::store, Reason::noService}; }
};

}  // namespace tarvo
