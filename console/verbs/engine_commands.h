// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "console/verbs/command.h"

// The verbs on the style service.
namespace tarvo {

// engine status: its form, whether it can be reached, whether it holds styles, and the stamp of the last exchange. Only
// reads.
class EngineStatusCommand : public Command {
 public:
  ExitStatus run(Console& console) override;
};

// engine push: registers all styles.
class EnginePushCommand : public Command {
 public:
  ExitStatus run(Console& console) override;
};

// engine pull: takes the service's styles when they are newer; a service without styles is given the local ones.
class EnginePullCommand : public Command {
 public:
  ExitStatus run(Console& console) override;
};

}  // namespace tarvo
