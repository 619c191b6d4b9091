// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QEvent>
#include <QKeyEvent>
#include <QWidget>

#include "platform/controls/windows.h"
#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"

namespace tarvo {
namespace {

class WindowView : public ControlView {
 public:
  WindowView(Window& control, QWidget& window, Registry& registry)
      : ControlView(control, window, registry), control_(control) {
    window.installEventFilter(this);
    WindowView::show(Control::Change::items);
  }

  // Closing is decided by the core, which hides the window or ends the program itself.
  bool eventFilter(QObject*, QEvent* event) override {
    const bool isEscape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->matches(QKeySequence::Cancel);
    if (isEscape && widget().inherits("QDialog")) {
      control_.userClose();
      return true;
    }
    if (event->type() != QEvent::Close) return false;
    event->ignore();
    control_.userClose();
    return true;
  }

 protected:
  void show(Control::Change) override {
    widget().setWindowTitle(toQString(control_.title()));
    widget().setAccessibleName(toQString(control_.label()));
  }

 private:
  Window& control_;
};

}  // namespace

void Binder::window(Window& control, QWidget& shown) { new WindowView(control, shown, registry_); }

}  // namespace tarvo
