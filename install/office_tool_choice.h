// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls/controls.h"

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
  // Has the tool list written for the chosen tool. Nothing without one.
  void writeOffieTool();
  void changeOfficeTool() { writeOffieTool(); }

 private:
  ToolListOutlets& outlets_;
  ToolListFile& file_;
};

}  // namespace tarvo
