// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/command.h"

// The verbs that show and bring back earlier styles.
namespace tarvo {

// history [ID]: the earlier sets, newest first; what was done to one. Only reads.
class HistoryCommand : public Command {
 public:
  explicit HistoryCommand(std::string id) : id_(std::move(id)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string id_;
};

// restore ID [N]: brings all of an earlier set back, or one style of it.
class RestoreCommand : public Command {
 public:
  RestoreCommand(std::string id, std::string style) : id_(std::move(id)), style_(std::move(style)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string id_, style_;
};

}  // namespace tarvo
