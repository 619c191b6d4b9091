// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QDialog>
#include <QEventLoop>

#include "console/script/interpreter.h"

namespace tarvo::test {

// Runs a script from the event loop. The call for the next line is posted before the present one runs, so that the loop
// of a dialog which that line opens delivers it.
class ScriptRun {
 public:
  explicit ScriptRun(Interpreter& interpreter) : interpreter_(interpreter) {}
  void run() {
    post(settlingTurns);
    loop_.exec();
  }

 private:
  // New pages are shown and laid out in the turns of the loop that follow.
  static constexpr int settlingTurns = 3;

  void post(int turns) {
    QMetaObject::invokeMethod(&loop_, [this, turns] { turn(turns); }, Qt::QueuedConnection);
  }

  void turn(int turns) {
    if (over_) return endDialogs();
    if (turns > 0 || interpreter_.isHeld()) return post(turns > 0 ? turns - 1 : 0);
    post(settlingTurns);
    if (interpreter_.step()) return;
    over_ = true;
  }

  // A script that ends or fails inside a dialog leaves its modal run up.
  void endDialogs() {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return loop_.quit();
    dialog->done(0);
    post(0);
  }

  Interpreter& interpreter_;
  QEventLoop loop_;
  bool over_ = false;
};

}  // namespace tarvo::test
