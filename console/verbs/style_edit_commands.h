// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "console/verbs/command.h"

// The verbs that change one style. style: as the command line names it (style_name.h).
namespace tarvo {

// style set N KEY=VALUE…: nothing changes before all pairs are known to be offered by a control.
class StyleSetCommand : public Command {
 public:
  StyleSetCommand(std::string style, std::vector<std::string> pairs)
      : style_(std::move(style)), pairs_(std::move(pairs)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string style_;
  std::vector<std::string> pairs_;
};

// style use N TOOL…: the tools, by their ids, use this style from now on.
class StyleUseCommand : public Command {
 public:
  StyleUseCommand(std::string style, std::vector<std::string> tools)
      : style_(std::move(style)), tools_(std::move(tools)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string style_;
  std::vector<std::string> tools_;
};

// style rename N NAME
class StyleRenameCommand : public Command {
 public:
  StyleRenameCommand(std::string style, std::string name) : style_(std::move(style)), name_(std::move(name)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string style_, name_;
};

// style import N FILE: the style keeps its place and its name.
class StyleImportCommand : public Command {
 public:
  StyleImportCommand(std::string style, std::string file) : style_(std::move(style)), file_(std::move(file)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string style_, file_;
};

// style export N FILE: FILE is taken as it stands; one that is there is replaced.
class StyleExportCommand : public Command {
 public:
  StyleExportCommand(std::string style, std::string file) : style_(std::move(style)), file_(std::move(file)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string style_, file_;
};

}  // namespace tarvo
