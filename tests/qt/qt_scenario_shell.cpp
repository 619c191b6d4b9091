// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/qt/qt_scenario_shell.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QTest>

#include "app/program.h"
#include "platform/services/texts.h"
#include "qt/dialogs.h"
#include "qt/shell.h"

namespace tarvo::test {

namespace {

// The alert that is up: a dialog of its own, else a sheet.
QDialog* shownAlert() {
  const auto alertOf = [](QWidget* widget) {
    const bool isAlert = widget != nullptr && widget->isVisible() && widget->objectName() == QLatin1String("alert");
    return isAlert ? qobject_cast<QDialog*>(widget) : nullptr;
  };
  if (QDialog* alert = alertOf(QApplication::activeModalWidget())) return alert;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (QDialog* alert = alertOf(widget)) return alert;
  }
  return nullptr;
}

// Once the alert is up: a click on its button. An alert without that button is closed.
void pressLater(int button) {
  QMetaObject::invokeMethod(
      qApp,
      [button] {
        QDialog* alert = shownAlert();
        if (alert == nullptr) return;
        auto* wanted = alert->findChild<QPushButton*>(QStringLiteral("alert.%1").arg(button));
        if (wanted == nullptr) return alert->done(-1);
        QTest::mouseClick(wanted, Qt::LeftButton);
      },
      Qt::QueuedConnection);
}

}  // namespace

QtScenarioShell::QtScenarioShell()
    : windows_(screen),
      panels_({[this](Window& window) { return windows_.widgetOf(window); },
               [this](QDialog& sheet, Window& host) { windows_.hang(sheet, host); }}) {}

void QtScenarioShell::programConstructed(Program& program) {
  const Services& services = program.services();
  binder_.emplace(services.texts, services.bundle, Scheme::light);
  hand_.emplace(binder_->registry());
  windows_.open(program.interface(), program.windows(), *binder_, paneBuilders(program.interface(), *binder_));
  addDialogs(windows_, program.interface(), *binder_);
}

void QtScenarioShell::programEnds(Program&) {
  windows_.close();
  hand_.reset();
  binder_.reset();
}

int QtScenarioShell::runAlert(const Alert& alert, int button) {
  pressLater(button);
  return panels_.runAlertPanel(alert);
}

void QtScenarioShell::beginAlertSheet(Window& host, const Alert& alert, int button, std::function<void(int)> handler) {
  pressLater(button);
  panels_.beginAlertSheet(host, alert, std::move(handler));
}

}  // namespace tarvo::test
