// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QCheckBox>
#include <QPushButton>

#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"
#include "qt/look/push_button.h"

namespace tarvo {
namespace {

class ButtonView : public ControlView {
 public:
  ButtonView(Button& control, QPushButton& button, Binder& binder)
      : ControlView(control, button, binder.registry()), control_(control), button_(button), binder_(binder) {
    connect(&button, &QPushButton::clicked, this, [this] { control_.userPress(); });
    ButtonView::show(Control::Change::items);
  }

 protected:
  void show(Control::Change) override {
    showCommonState();
    button_.setText(toQString(control_.label()));
    button_.setIcon(binder_.icon(control_.image()));
  }

 private:
  Button& control_;
  QPushButton& button_;
  Binder& binder_;
};

class CheckBoxView : public ControlView {
 public:
  CheckBoxView(CheckBox& control, QCheckBox& box, Registry& registry)
      : ControlView(control, box, registry), control_(control), box_(box) {
    // Assistive tools toggle without a click. The program changes the control first, so its changes differ from
    // nothing.
    connect(&box, &QCheckBox::toggled, this, [this](bool on) {
      if (on == control_.state()) return;
      control_.userCheck(on);
      show(Control::Change::value);
    });
    CheckBoxView::show(Control::Change::items);
  }

 protected:
  void show(Control::Change) override {
    showCommonState();
    box_.setText(toQString(control_.label()));
    box_.setChecked(control_.state());
  }

 private:
  CheckBox& control_;
  QCheckBox& box_;
};

}  // namespace

QPushButton* Binder::button(Button& control, QWidget* parent) {
  auto* button = new PushButton(parent);
  new ButtonView(control, *button, *this);
  return button;
}

QCheckBox* Binder::check(CheckBox& control, QWidget* parent) {
  auto* box = new QCheckBox(parent);
  new CheckBoxView(control, *box, registry_);
  return box;
}

}  // namespace tarvo
