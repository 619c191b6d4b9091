// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "console/verbs/command.h"

namespace tarvo {

// doctor: every path that the manager looks at, what was found there, what is missing. Only reads.
class DoctorCommand : public Command {
 public:
  ExitStatus run(Console& console) override;
};

}  // namespace tarvo
