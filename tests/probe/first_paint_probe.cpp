// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <unistd.h>

#include <QApplication>
#include <QEvent>
#include <QWidget>
#include <string_view>

// Writes "first-paint\n" to the descriptor whose number TARVO_PAINT_PROBE_FD holds when the main window has been
// painted for the first time, and closes the window then when TARVO_PAINT_PROBE_QUIT is set. Nothing without the first
// variable.
namespace {

class FirstPaint : public QObject {
 public:
  FirstPaint(QObject& application, int descriptor) : QObject(&application), descriptor_(descriptor) {
    application.installEventFilter(this);
  }

  // The window paints before what stands in it; a queued call comes after all of it.
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    auto* window = qobject_cast<QWidget*>(watched);
    if (window == nullptr || !window->isWindow() || window->windowType() != Qt::Window) return false;
    parent()->removeEventFilter(this);
    QMetaObject::invokeMethod(window, [this, window] { tell(*window); }, Qt::QueuedConnection);
    return false;
  }

 private:
  void tell(QWidget& window) const {
    constexpr std::string_view line = "first-paint\n";
    const auto written = write(descriptor_, line.data(), line.size());
    if (written < 0 || qEnvironmentVariableIsSet("TARVO_PAINT_PROBE_QUIT")) window.close();
  }

  int descriptor_;
};

void install() {
  bool isNumber = false;
  const int descriptor = qEnvironmentVariableIntValue("TARVO_PAINT_PROBE_FD", &isNumber);
  if (isNumber) new FirstPaint(*QCoreApplication::instance(), descriptor);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(install)
