// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/command.h"
#include "platform/services/result.h"

namespace tarvo {

class UserDefaults;

// tool-list [TOOL]: writes the tool list for the tool with this code, else for the remembered one.
class ToolListCommand : public Command {
 public:
  explicit ToolListCommand(std::string tool) : tool_(std::move(tool)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string tool_;
};

// The tool list anew, for the remembered tool.
Result<> writeToolList(Product& product, UserDefaults& defaults);

}  // namespace tarvo
