// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/sheet.h"

#include <QDialog>
#include <QEvent>

namespace tarvo {
namespace {

class Hanger : public QObject {
 public:
  Hanger(QDialog& sheet, QWidget& host, int top) : QObject(&sheet), sheet_(sheet), host_(host), top_(top) {
    host.installEventFilter(this);
  }

  void hang() {
    const int x = (host_.width() - sheet_.width()) / 2;
    sheet_.move(host_.mapToGlobal(QPoint(x, top_)));
  }

  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Move || event->type() == QEvent::Resize) hang();
    return false;
  }

 private:
  QDialog& sheet_;
  QWidget& host_;
  int top_;
};

}  // namespace

void openSheet(QDialog& dialog, QWidget& host, int top) {
  dialog.setParent(&host, Qt::Dialog | Qt::FramelessWindowHint);
  dialog.setWindowModality(Qt::WindowModal);
  dialog.adjustSize();
  auto* hanger = new Hanger(dialog, host, top);
  QObject::connect(&dialog, &QDialog::finished, hanger, &QObject::deleteLater);
  hanger->hang();  // before it opens: a place that is set later is not told to assistive tools
  dialog.open();
}

}  // namespace tarvo
