// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/addin_name.h"
#include "console/verbs/command.h"

// The verbs on Office macros and mail scripts. Those that change something remember the rows of both tables.
namespace tarvo {

// addins: the rows of both tables as the next start would show them. Only reads.
class AddinsCommand : public Command {
 public:
  ExitStatus run(Console& console) override;
};

// addin install|remove NAME [VERSION]
class AddinEditCommand : public Command {
 public:
  AddinEditCommand(AddinName name, bool install) : name_(std::move(name)), install_(install) {}
  ExitStatus run(Console& console) override;

 private:
  AddinName name_;
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

}  // namespace tarvo
