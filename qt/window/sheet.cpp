// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/sheet.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QTimer>
#include <QWindow>

#include "qt/look/plate.h"

namespace tarvo {
namespace {

bool isOnMenuBar(const QWidget& host, QPoint place) {
  const auto* bar = host.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
  return bar != nullptr && bar->isVisible() && bar->geometry().contains(place);
}

bool isKey(const QEvent& event) { return event.type() == QEvent::KeyPress || event.type() == QEvent::KeyRelease; }

// Whether an event of the host's window is a gesture that a sheet keeps from it.
bool isShutOut(const QEvent& event, const QWidget& host) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove: return !isOnMenuBar(host, static_cast<const QMouseEvent&>(event).position().toPoint());
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close: return true;
    default: return false;
  }
}

// Events whose acceptance is an answer: yes, the window closes; yes, this can be dropped here.
bool isAsking(QEvent::Type type) {
  return type == QEvent::Close || type == QEvent::DragEnter || type == QEvent::DragMove || type == QEvent::Drop;
}

// Dims what a sheet keeps from the user; the menu bar stays as it is.
class Veil : public QWidget {
 public:
  explicit Veil(QWidget& host) : QWidget(&host) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    cover();
    show();
  }

  void cover() {
    const QWidget& host = *parentWidget();
    const auto* bar = host.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
    setGeometry(host.rect().adjusted(0, bar != nullptr && bar->isVisible() ? bar->height() : 0, 0, 0));
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QColor shade = palette().color(QPalette::Shadow);
    shade.setAlphaF(isDark(palette()) ? 0.4F : 0.12F);
    QPainter(this).fillRect(rect(), shade);
  }
};

class Hanger : public QObject {
 public:
  Hanger(QDialog& sheet, QWidget& host, int top)
      : QObject(&sheet), sheet_(sheet), host_(host), top_(top), veil_(new Veil(host)) {
    host.installEventFilter(this);
    sheet.installEventFilter(this);
    host.window()->windowHandle()->installEventFilter(this);
    sheet.addActions(host.actions());
  }

  ~Hanger() override {
    for (QAction* action : host_.actions()) sheet_.removeAction(action);
    delete veil_;
  }

  void hang() {
    const int x = (host_.width() - sheet_.width()) / 2;
    sheet_.move(host_.mapToGlobal(QPoint(x, top_)));
    veil_->cover();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (watched == &sheet_) {
      if (event->type() == QEvent::Paint) drawPaper();
      if (event->type() == QEvent::Hide && !event->spontaneous()) delete this;
      return false;
    }
    if (watched != &host_) return isKept(*event);
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) hang();
    // A click on the host, or on its menu bar, brings it to the front.
    if (event->type() == QEvent::WindowActivate) QTimer::singleShot(0, this, [this] { takeKeyboard(); });
    return false;
  }

 private:
  // No window manager gives it an edge.
  void drawPaper() {
    QPainter painter(&sheet_);
    const QPalette& palette = sheet_.palette();
    drawPlate(painter, sheet_.rect(), 0, palette.color(QPalette::Base), palette.color(QPalette::Dark));
  }

  // An open menu takes its events through the host's window.
  bool isKept(QEvent& event) {
    if (QApplication::activePopupWidget() != nullptr) return false;
    if (isKey(event)) {
      takeKeyboard();
      if (QWindow* window = sheet_.windowHandle()) QCoreApplication::sendEvent(window, &event);
      return true;
    }
    if (!isShutOut(event, host_)) return false;
    if (event.type() == QEvent::MouseButtonPress) takeKeyboard();
    event.setAccepted(!isAsking(event.type()));
    return true;
  }

  void takeKeyboard() {
    if (QApplication::activePopupWidget() == nullptr && sheet_.isVisible()) sheet_.activateWindow();
  }

  QDialog& sheet_;
  QWidget& host_;
  int top_;
  QPointer<Veil> veil_;  // the host may go first
};

}  // namespace

void openSheet(QDialog& dialog, QWidget& host, int top) {
  dialog.setParent(&host, Qt::Dialog | Qt::FramelessWindowHint);
  dialog.setWindowModality(Qt::NonModal);
  dialog.adjustSize();
  auto* hanger = new Hanger(dialog, host, top);
  hanger->hang();  // before it opens: a place that is set later is not told to assistive tools
  dialog.show();
}

QDialog* sheetOver(const QWidget& host) {
  for (QDialog* dialog : host.findChildren<QDialog*>(QString(), Qt::FindDirectChildrenOnly)) {
    const bool isHung = dialog->isVisible() && dialog->windowFlags().testFlag(Qt::FramelessWindowHint);
    if (isHung) return dialog;
  }
  return nullptr;
}

}  // namespace tarvo
