// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/command.h"

namespace tarvo {

// styles: index, name, whether it is the divider, the tools that have chosen it.
class StylesCommand : public Command {
 public:
  ExitStatus run(Console& console) override;
};

// style show N: the record as the style file holds it. style: as the command line names it (style_name.h).
class StyleShowCommand : public Command {
 public:
  explicit StyleShowCommand(std::string style) : style_(std::move(style)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string style_;
};

}  // namespace tarvo
