// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "console/verbs/command.h"

// The verbs that rename a style and carry it from one machine to another. What the window would say in an alert goes to
// the error stream.
namespace tarvo {

// style rename N NAME: through the naming sheet, which alone decides about the name.
class StyleRenameCommand : public Command {
 public:
  StyleRenameCommand(int index, std::string name) : index_(index), name_(std::move(name)) {}
  ExitStatus run(Console& console) override;

 private:
  int index_;
  std::string name_;
};

// style export N FILE: FILE is taken as it stands; one that is there is replaced.
class StyleExportCommand : public Command {
 public:
  StyleExportCommand(int index, std::string file) : index_(index), file_(std::move(file)) {}
  ExitStatus run(Console& console) override;

 private:
  int index_;
  std::string file_;
};

// style import N FILE: the style keeps its place and its name.
class StyleImportCommand : public Command {
 public:
  StyleImportCommand(int index, std::string file) : index_(index), file_(std::move(file)) {}
  ExitStatus run(Console& console) override;

 private:
  int index_;
  std::string file_;
};

}  // namespace tarvo
