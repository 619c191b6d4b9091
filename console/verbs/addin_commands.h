// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/command.h"

// The verbs on Office macros and mail scripts.
namespace tarvo {

// addins: the rows of both tables as the next start would show them. Only reads.
class AddinsCommand : public Command {
 public:
  explicit AddinsCommand(bool json) : json_(json) {}
  ExitStatus run(Console& console) override;

 private:
  bool json_;
};

// addin install|remove NAME [VERSION]: ticks or clears a row's box. Why it did not work is told in the window's words.
class AddinTickCommand : public Command {
 public:
  // name: as the table shows it, or the path of the application. version: "" where the name alone says which one.
  AddinTickCommand(std::string name, std::string version, bool install)
      : name_(std::move(name)), version_(std::move(version)), install_(install) {}
  ExitStatus run(Console& console) override;

 private:
  std::string name_, version_;
  bool install_;
};

// addin search FOLDER: tells what was added, or that nothing was.
class AddinSearchCommand : public Command {
 public:
  explicit AddinSearchCommand(std::string folder) : folder_(std::move(folder)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string folder_;
};

// tool-list [TOOL]: writes the tool list, for the tool with this code when one is given. A write that failed is told.
class ToolListCommand : public Command {
 public:
  explicit ToolListCommand(std::string tool) : tool_(std::move(tool)) {}
  ExitStatus run(Console& console) override;

 private:
  std::string tool_;
};

}  // namespace tarvo
