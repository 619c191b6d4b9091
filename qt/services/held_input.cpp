// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/held_input.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <memory>
#include <utility>
#include <vector>

namespace tarvo {
namespace {

bool isInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease: return true;
    default: return false;
  }
}

// Takes what the desktop hands to windows, before any control sees it.
class HeldInput : public QObject {
 public:
  HeldInput() { QCoreApplication::instance()->installEventFilter(this); }
  ~HeldInput() override {
    QCoreApplication::instance()->removeEventFilter(this);
    for (Held& held : held_) {
      if (held.window) QCoreApplication::postEvent(held.window, held.event.release());
    }
  }
  Q_DISABLE_COPY_MOVE(HeldInput)

  bool eventFilter(QObject* receiver, QEvent* event) override {
    if (!receiver->isWindowType()) return false;
    if (event->type() == QEvent::ShortcutOverride) {
      event->accept();  // nobody's shortcut now: the key itself comes later
      return true;
    }
    if (!isInput(event->type())) return false;
    held_.push_back({static_cast<QWindow*>(receiver), std::unique_ptr<QEvent>(event->clone())});
    return true;
  }

 private:
  struct Held {
    QPointer<QWindow> window;
    std::unique_ptr<QEvent> event;
  };
  std::vector<Held> held_;
};

}  // namespace

void serveWithoutInput(const std::function<bool()>& isOver, std::chrono::milliseconds limit) {
  if (isOver()) return;
  const HeldInput held;
  QTimer timer;
  timer.setSingleShot(true);
  timer.start(limit);
  while (!isOver() && timer.isActive()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

}  // namespace tarvo
