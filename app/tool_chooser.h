// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>

#include "style/sibling_tools.h"

namespace tarvo {

class Control;
struct OptionOutlets;
struct ProcessFlags;
struct StyleOutlets;
class Texts;

// The tool chooser: three segmented controls, three segments each, that together hold the sibling tools.
// The place of a tool = segment + 3 x control.
class ToolChooser {
 public:
  // select: run with the chosen tool.
  ToolChooser(StyleOutlets& outlets, OptionOutlets& options, ProcessFlags& flags, std::function<void(Tool)> select);
  // Gives each segment its tool's icon and tip; the ninth has no tool and is disabled.
  void setUpSegments(const Texts& texts);
  void appSegChange(Control& sender);
  // Selects the tool at a place by program. A place beyond the segments leaves none selected.
  void setSelectSeg(int place);
  // Enables the seven option pop-ups, or disables them for the tools that have no options of their own.
  void doEnabledButtons(std::optional<Tool> tool);
  bool isSegChange() const { return isSegChange_; }

 private:
  void deselectAll(int segments);
  void choose(int place);
  StyleOutlets& outlets_;
  OptionOutlets& options_;
  ProcessFlags& flags_;
  std::function<void(Tool)> select_;
  bool isSegChange_ = false;
};

}  // namespace tarvo
