// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "console/verbs/command.h"

namespace tarvo {

// open CODE: becomes the window program with "--open CODE", which hands the code to the running manager or starts one;
// its status is this one's. The program lies beside this one, or where the build puts it.
class OpenCommand : public Command {
 public:
  // options: of the command line, for the other program.
  OpenCommand(std::vector<std::string> options, std::string code)
      : options_(std::move(options)), code_(std::move(code)) {}
  ExitStatus run(Console& console) override;  // returns only when the program could not be started

 private:
  std::vector<std::string> options_;
  std::string code_;
};

}  // namespace tarvo
