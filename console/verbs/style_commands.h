// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "console/verbs/command.h"

namespace tarvo {

// styles: index, name, whether it is the divider, the tools that have chosen it.
class StylesCommand : public Command {
 public:
  explicit StylesCommand(bool json) : json_(json) {}
  ExitStatus run(Console& console) override;

 private:
  bool json_;
};

// style show N: the record as the style file holds it.
class StyleShowCommand : public Command {
 public:
  StyleShowCommand(int index, bool json) : index_(index), json_(json) {}
  ExitStatus run(Console& console) override;

 private:
  int index_;
  bool json_;
};

// style set N KEY=VALUE…: each pair through the pop-up that edits the key. Nothing changes before all pairs are known
// to have one.
class StyleSetCommand : public Command {
 public:
  StyleSetCommand(int index, std::vector<std::string> pairs) : index_(index), pairs_(std::move(pairs)) {}
  ExitStatus run(Console& console) override;

 private:
  int index_;
  std::vector<std::string> pairs_;
};

}  // namespace tarvo
