// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QApplication>
#include <QScrollArea>
#include <QScrollBar>

#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"

namespace tarvo {
namespace {

// What is shown of a pane is its tab view's affair; here only its name and whether it is enabled.
class PaneView : public ControlView {
 public:
  PaneView(View& control, QWidget& pane, Registry& registry) : ControlView(control, pane, registry), control_(control) {
    PaneView::show(Control::Change::items);
  }

 protected:
  void show(Control::Change change) override {
    widget().setAccessibleName(toQString(control_.label()));
    widget().setEnabled(control_.isEnabled());
    if (change == Control::Change::scroll) {
      if (auto* area = qobject_cast<QScrollArea*>(&widget())) area->verticalScrollBar()->setValue(0);
    }
  }

 private:
  View& control_;
};

}  // namespace

void Binder::view(View& control, QWidget& shown) { new PaneView(control, shown, registry_); }

QScrollArea* Binder::scroll(View& control, QWidget* parent) {
  auto* area = new QScrollArea(parent);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  // The area itself follows Tab only; whatever else brings the keyboard to a control has to bring it into view too.
  QObject::connect(qApp, &QApplication::focusChanged, area, [area](QWidget*, QWidget* now) {
    if (now != nullptr && area->widget() != nullptr && area->widget()->isAncestorOf(now))
      area->ensureWidgetVisible(now);
  });
  new PaneView(control, *area, registry_);
  return area;
}

}  // namespace tarvo
