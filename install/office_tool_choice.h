// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "platform/controls/controls.h"
#include "platform/services/result.h"

namespace tarvo {

class ToolListFile;

struct ToolListOutlets : Outlets {
  PopUpButton officeToolPopup{*this, "officeToolPopup"};
  ToolListOutlets() : Outlets("manager") {}
};

// The pop-up with the tool that the Office macros start; its items stand in the order of the tools' codes.
class OfficeToolChoice {
 public:
  // Not owned.
  OfficeToolChoice(ToolListOutlets& outlets, ToolListFile& file) : outlets_(outlets), file_(file) {}
  // Selects the remembered tool; an unknown one leaves the pop-up alone.
  void restoreTool();
  // Has the tool list written for the chosen tool, and tells where that failed. Nothing without one.
  void writeOffieTool();
  void changeOfficeTool() { writeOffieTool(); }
  std::function<void(const Failure& failure)> didFail;

 private:
  ToolListOutlets& outlets_;
  ToolListFile& file_;
};

}  // namespace tarvo
