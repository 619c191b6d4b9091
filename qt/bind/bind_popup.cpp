// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QComboBox>
#include <QEvent>

#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"
#include "qt/bind/popup_model.h"
#include "qt/look/metrics.h"

namespace tarvo {
namespace {

class PopUpView : public ControlView {
 public:
  PopUpView(PopUpButton& control, QComboBox& combo, Binder& binder)
      : ControlView(control, combo, binder.registry()),
        control_(control),
        combo_(combo),
        model_(*new PopUpModel(control, binder, &combo)) {
    combo.setModel(&model_);
    combo.installEventFilter(this);
    connect(&combo, &QComboBox::activated, this, [this](int index) {
      control_.userChoose(index);
      show(Control::Change::value);  // a refused choice is taken back
    });
    PopUpView::show(Control::Change::value);
  }

  // The wheel scrolls the page below, not the pop-up; an open list has a window of its own.
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() != QEvent::Wheel) return false;
    event->ignore();
    return true;
  }

 protected:
  void show(Control::Change change) override {
    showCommonState();
    if (change == Control::Change::items) model_.itemsChanged();
    if (combo_.currentIndex() != control_.indexOfSelectedItem()) {
      combo_.setCurrentIndex(control_.indexOfSelectedItem());
    }
  }

 private:
  PopUpButton& control_;
  QComboBox& combo_;
  PopUpModel& model_;
};

}  // namespace

QComboBox* Binder::popup(PopUpButton& control, QWidget* parent) {
  auto* combo = new QComboBox(parent);
  // A width of its own: measuring each of thousands of items would take longer than showing them.
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(1);
  combo->setMinimumWidth(metrics::popUpWidth);
  combo->setIconSize({metrics::popUpIcon, metrics::popUpIcon});
  new PopUpView(control, *combo, *this);
  return combo;
}

QComboBox* Binder::detailPopup(PopUpButton& control, QWidget* parent) {
  QComboBox* combo = popup(control, parent);
  combo->setPlaceholderText(localized("DetailUnset"));
  return combo;
}

}  // namespace tarvo
