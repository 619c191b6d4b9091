// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QToolButton>

#include "qt/bind/in_step.h"
#include "qt/bind/segments_widget.h"
#include "tests/qt/bound_controls.h"

namespace tarvo::test {
namespace {

struct Difference {
  const char* name;
  void (*make)(BoundControls& bound);  // shows something else than the control holds
};
void PrintTo(const Difference& difference, std::ostream* out) { *out << difference.name; }

class OutOfStep : public testing::TestWithParam<Difference>, public BoundControls {};

TEST_P(OutOfStep, aDifferenceIsFoundAndNamed) {
  GetParam().make(*this);
  EXPECT_TRUE(outOfStep(binder.registry()).starts_with(std::string("test.") + GetParam().name + ": "))
      << outOfStep(binder.registry());
}

INSTANTIATE_TEST_SUITE_P(
    Bind, OutOfStep,
    testing::Values(
        Difference{"popup", [](BoundControls& b) { b.binder.popup(b.outlets.popup, &b.window)->setCurrentIndex(3); }},
        Difference{"button", [](BoundControls& b) { b.binder.button(b.outlets.button, &b.window)->setEnabled(false); }},
        Difference{"check",
                   [](BoundControls& b) {
                     auto* box = b.binder.check(b.outlets.check, &b.window);
                     const QSignalBlocker quiet(box);
                     box->setChecked(true);
                   }},
        Difference{"field", [](BoundControls& b) { b.binder.field(b.outlets.field, &b.window)->setText("x"); }},
        Difference{"text", [](BoundControls& b) { b.binder.text(b.outlets.text, &b.window)->hide(); }},
        Difference{"segments",
                   [](BoundControls& b) {
                     auto* pieces = static_cast<SegmentsWidget*>(b.binder.segments(b.outlets.segments, &b.window));
                     pieces->segments()[0]->setEnabled(false);
                   }},
        Difference{"tabs",
                   [](BoundControls& b) { b.binder.tabs(b.outlets.tabs, {}, &b.window)->setTabText(0, "other"); }},
        Difference{"window",
                   [](BoundControls& b) {
                     b.binder.window(b.outlets.window, b.window);
                     b.window.setWindowTitle("other");
                   }}),
    testing::PrintToStringParamName());

}  // namespace
}  // namespace tarvo::test
