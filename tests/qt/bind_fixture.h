// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "qt/bind/in_step.h"
#include "qt/bind/segments_widget.h"
#include "tests/qt/bound_controls.h"

namespace tarvo::test {

struct Bind : testing::Test, BoundControls {
  SegmentsWidget& segments() { return static_cast<SegmentsWidget&>(shown(binder.segments(outlets.segments, &window))); }
  std::string inStep() { return outOfStep(binder.registry()); }
};

}  // namespace tarvo::test
