// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/tool_chooser.h"

#include <array>
#include <string>
#include <utility>

#include "app/interface.h"
#include "platform/services/texts.h"
#include "style/process_flags.h"
#include "style/sibling_tools.h"

namespace tarvo {

namespace {

constexpr int segmentsEach = 3;

std::array<SegmentedControl*, 3> segmentedControls(StyleOutlets& outlets) {
  return {&outlets.TEAppSeg1, &outlets.TEAppSeg2, &outlets.TEAppSeg3};
}

}  // namespace

ToolChooser::ToolChooser(StyleOutlets& outlets, OptionOutlets& options, ProcessFlags& flags,
                         std::function<void(Tool)> select)
    : outlets_(outlets), options_(options), flags_(flags), select_(std::move(select)) {}

void ToolChooser::setUpSegments(const Texts& texts) {
  std::size_t tool = 0;
  for (SegmentedControl* control : segmentedControls(outlets_)) {
    std::vector<SegmentedControl::Segment> segments;
    for (int i = 0; i < segmentsEach; ++i, ++tool) {
      const bool exists = tool < siblingTools.size();
      segments.push_back({exists ? std::string(siblingTools[tool].icon) : std::string(),
                          exists ? texts.localized("Tool." + std::string(siblingTools[tool].key)) : std::string(),
                          exists});
    }
    control->setSegments(std::move(segments));
  }
}

void ToolChooser::deselectAll(int segments) {
  for (SegmentedControl* control : segmentedControls(outlets_)) {
    for (int i = 0; i < segments; ++i) control->setSelected(i, false);
  }
}

void ToolChooser::appSegChange(Control& sender) {
  auto& control = static_cast<SegmentedControl&>(sender);
  isSegChange_ = true;
  const int segment = control.selectedSegment();
  deselectAll(control.segmentCount());
  control.setSelected(segment, true);
  choose(segment + segmentsEach * control.tag());
  isSegChange_ = false;
}

void ToolChooser::choose(int place) {
  flags_.saveHit = toolForPlace(place);
  if (flags_.saveHit) select_(*flags_.saveHit);
}

void ToolChooser::setSelectSeg(int place) {
  isSegChange_ = true;
  deselectAll(segmentsEach);
  if (place >= 0 && place < 3 * segmentsEach) {
    segmentedControls(outlets_)[static_cast<std::size_t>(place / segmentsEach)]->setSelected(place % segmentsEach,
                                                                                             true);
  }
  choose(place);
  isSegChange_ = false;
}

void ToolChooser::doEnabledButtons(std::optional<Tool> tool) {
  const bool enabled = tool != Tool::notepad && tool != Tool::officeAddins;
  for (PopUpButton& popup : options_.indexPopups) popup.setEnabled(enabled);
}

}  // namespace tarvo
