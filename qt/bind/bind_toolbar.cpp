// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QToolBar>
#include <QToolButton>

#include "app/toolbar.h"
#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"
#include "qt/bind/gesture.h"
#include "qt/look/metrics.h"

namespace tarvo {
namespace {

class ToolbarItemView : public ControlView {
 public:
  ToolbarItemView(Button& control, QToolButton& button, Binder& binder)
      : ControlView(control, button, binder.registry()), control_(control), button_(button), binder_(binder) {
    ToolbarItemView::show(Control::Change::items);
  }

 protected:
  // Hidden items have no button at all.
  void show(Control::Change) override {
    button_.setText(toQString(control_.label()));
    button_.setIcon(binder_.icon(control_.image()));
    button_.setAccessibleName(button_.text());
    button_.setToolTip(plainToolTip(control_.toolTip()));
    button_.setEnabled(control_.isEnabled());
  }

 private:
  Button& control_;
  QToolButton& button_;
  Binder& binder_;
};

class ToolbarControlView : public ControlView {
 public:
  ToolbarControlView(Toolbar& control, QToolBar& bar, Binder& binder)
      : ControlView(control, bar, binder.registry()), control_(control), bar_(bar), binder_(binder) {
    ToolbarControlView::show(Control::Change::items);
  }

 protected:
  void show(Control::Change) override {
    bar_.setAccessibleName(toQString(control_.label()));
    bar_.setToolButtonStyle(style());
    if (shown_ != control_.order()) refill();
    showSelection();
    if (control_.isShown() == isHiddenItself(bar_)) bar_.setVisible(control_.isShown());
  }

 private:
  Qt::ToolButtonStyle style() const {
    switch (control_.displayMode()) {
      case Toolbar::DisplayMode::iconOnly: return Qt::ToolButtonIconOnly;
      case Toolbar::DisplayMode::labelOnly: return Qt::ToolButtonTextOnly;
      case Toolbar::DisplayMode::iconAndLabel: break;
    }
    return Qt::ToolButtonTextUnderIcon;
  }

  void refill() {
    qDeleteAll(bar_.actions());  // and their buttons
    shown_ = control_.order();
    for (const std::string& identifier : shown_) addItem(identifier, *control_.item(identifier));
  }

  void addItem(const std::string& identifier, Button& item) {
    auto* button = new QToolButton(&bar_);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    button->setIconSize({metrics::toolbarIcon, metrics::toolbarIcon});
    button->setToolButtonStyle(bar_.toolButtonStyle());
    QObject::connect(&bar_, &QToolBar::toolButtonStyleChanged, button, &QToolButton::setToolButtonStyle);
    bar_.addWidget(button);
    new ToolbarItemView(item, *button, binder_);
    new Gesture(
        *button, [this, identifier] { return control_.selectedItemIdentifier() == identifier; },
        [this, &item] {
          item.userPress();
          showSelection();
        });
  }

  void showSelection() {
    for (const std::string& identifier : shown_) {
      auto* button = binder_.registry().find<QToolButton>(control_.item(identifier)->name());
      if (button != nullptr) button->setChecked(control_.selectedItemIdentifier() == identifier);
    }
  }

  Toolbar& control_;
  QToolBar& bar_;
  Binder& binder_;
  std::vector<std::string> shown_;
};

}  // namespace

void Binder::toolbar(Toolbar& control, QToolBar& bar) { new ToolbarControlView(control, bar, *this); }

}  // namespace tarvo
