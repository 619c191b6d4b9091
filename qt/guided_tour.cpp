// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/guided_tour.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPixmap>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <iostream>

#include "qt/bind/in_step.h"
#include "qt/shell.h"
#include "qt/window/main_window.h"

namespace tarvo {
namespace {

constexpr int settling = 400;  // ms for a pane switch and its painting

class Tour {
 public:
  Tour(Shell& shell, const QString& folder) : shell_(shell), folder_(folder) {}

  bool walk() { return styles() && office() && mail() && press("manager.StyleManager") && isSaved(); }

  const std::vector<QString>& pictures() const { return pictures_; }

 private:
  bool styles() {
    return picture("styles") && next("style.stylePopup") && picture("another-style") && next("style.ejEditPopup") &&
           next("style.ejOption1Popup") && picture("option-changed");
  }

  bool office() {
    return press("manager.OA") && tick("manager.officeTableView") && picture("office") &&
           caution("manager.officePowerPointButton", "manager.alertPowerPoint", "about-powerpoint");
  }

  bool mail() { return press("manager.MT") && tick("manager.mailTableView") && picture("mail"); }

  bool fail(const std::string& reason) {
    std::cerr << "tarvo-manager: tour: " << reason << '\n';
    return false;
  }

  void settle() {
    QEventLoop loop;
    QTimer::singleShot(settling, &loop, &QEventLoop::quit);
    loop.exec();
  }

  bool settled() {
    settle();
    const std::string difference = outOfStep(shell_.registry());
    return difference.empty() || fail(difference);
  }

  template <class Widget>
  Widget* usable(const char* name) {
    auto* widget = shell_.registry().find<Widget>(name);
    if (widget == nullptr || !widget->isVisible() || !widget->isEnabled()) {
      fail(std::string(name) + " cannot be used");
      return nullptr;
    }
    return widget;
  }

  static void strike(QWidget& widget, Qt::Key key) {
    widget.setFocus(Qt::TabFocusReason);
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
      QKeyEvent event(type, key, Qt::NoModifier);
      QApplication::sendEvent(&widget, &event);
    }
  }

  // The box of a row; a product of the user's own may have none.
  bool tick(const char* name) {
    auto* table = usable<QTableView>(name);
    if (table == nullptr) return false;
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Space}) {
      if (table->model()->rowCount() > 0) strike(*table, key);
    }
    return settled();
  }

  // One item further by the keyboard.
  bool next(const char* name) {
    auto* combo = usable<QComboBox>(name);
    if (combo == nullptr) return false;
    const int before = combo->currentIndex();
    strike(*combo, Qt::Key_Down);
    return combo->currentIndex() != before ? settled() : fail(std::string(name) + " did not change");
  }

  bool press(const char* name) {
    auto* button = usable<QAbstractButton>(name);
    if (button == nullptr) return false;
    button->click();
    return button->isChecked() ? settled() : fail(std::string(name) + " was not chosen");
  }

  // The window that a button brings up.
  bool caution(const char* buttonName, const char* windowName, const char* pictureName) {
    auto* button = usable<QAbstractButton>(buttonName);
    if (button == nullptr) return false;
    button->click();
    if (!settled()) return false;
    auto* shown = usable<QDialog>(windowName);
    if (shown == nullptr || !picture(pictureName, *shown)) return false;
    strike(*shown, Qt::Key_Escape);
    return !shown->isVisible() || fail(std::string(windowName) + " stays");
  }

  bool picture(const char* name) { return settled() && picture(name, *shell_.windows().mainWindow()); }

  bool picture(const char* name, QWidget& window) {
    const QString number = QStringLiteral("%1-").arg(pictures_.size() + 1);
    const QString path = QDir(folder_).filePath(number + QLatin1String(name) + QStringLiteral(".png"));
    if (!window.grab().save(path)) return fail("cannot write " + path.toStdString());
    pictures_.push_back(path);
    return true;
  }

  bool isSaved() { return shell_.program().rooms().store.isSaved() || fail("the styles could not be saved"); }

  Shell& shell_;
  QString folder_;
  std::vector<QString> pictures_;
};

}  // namespace

void answerByDefault(QObject& owner) {
  auto* timer = new QTimer(&owner);
  QObject::connect(timer, &QTimer::timeout, &owner, [] {
    const QWidget* dialog = QApplication::activeModalWidget();
    if (dialog == nullptr) return;
    for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
      if (button->isDefault()) return button->click();
    }
  });
  timer->start(settling);
}

bool takeGuidedTour(Shell& shell, Product& product, const std::string& folder) {
  const QString place = QDir().absoluteFilePath(toQString(folder));
  if (!QDir().mkpath(place)) {
    std::cerr << "tarvo-manager: tour: cannot make the folder " << folder << '\n';
    return false;
  }
  Tour tour(shell, place);
  const bool isWalked = tour.walk();
  shell.program().quit();
  if (!isWalked) return false;
  for (const QString& path : tour.pictures()) std::cout << path.toStdString() << '\n';
  std::cout << product.locations().resolve(shell.program().rooms().store.path()) << '\n';
  return true;
}

}  // namespace tarvo
