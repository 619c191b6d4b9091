// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/guided_tour.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <iostream>

#include "platform/text/printable.h"
#include "qt/bind/in_step.h"
#include "qt/shell.h"
#include "qt/window/main_window.h"
#include "qt/window/sheet.h"

namespace tarvo {
namespace {

constexpr int settling = 400;  // ms for a pane switch and its painting

class Tour {
 public:
  Tour(Shell& shell, const QString& folder) : shell_(shell), folder_(folder) {}

  bool walk() {
    return answerTheService() && styles() && office() && mail() && press("manager.StyleManager") && isSaved();
  }

  const std::vector<QString>& pictures() const { return pictures_; }

 private:
  bool styles() {
    return picture("styles") && next("style.stylePopup") && picture("another-style") && next("style.ejEditPopup") &&
           next("style.ejOption1Popup") && picture("option-changed") && rename() && exportWindow();
  }

  bool office() {
    return press("manager.OA") && tick("manager.officeTableView") && picture("office") &&
           caution("manager.officePowerPointButton", "manager.alertPowerPoint", "about-powerpoint");
  }

  bool mail() { return press("manager.MT") && tick("manager.mailTableView") && picture("mail"); }

  bool fail(const std::string& reason) {
    std::cerr << "tarvo-manager: tour: " << printable(reason) << '\n';
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
    return settled();
  }

  // The first start asks about the style service.
  bool answerTheService() {
    auto* sheet = shell_.registry().find<QWidget>("manager.sslPanel");
    if (sheet == nullptr || !sheet->isVisible()) return true;
    return picture("service") && press("manager.sslOKButton");
  }

  bool rename() { return press("style.StyleNameEditButton") && picture("rename") && press("style.snCancelButton"); }

  // The choice of the menu comes back when the window is closed.
  bool exportWindow() {
    auto* menu = shell_.registry().find<QAction>("style.exportWindowMenu");
    if (menu == nullptr) return fail("there is no export window");
    bool isShown = false;
    QTimer::singleShot(0, menu, [this, &isShown] {
      isShown = picture("export") && press("style.exportCloseButton");
      if (auto* left = QApplication::activeModalWidget()) left->close();
    });
    menu->trigger();
    return isShown || fail("the export window did not come up");
  }

  // The window that a button brings up.
  bool caution(const char* buttonName, const char* windowName, const char* pictureName) {
    auto* button = usable<QAbstractButton>(buttonName);
    if (button == nullptr) return false;
    button->click();
    if (!settled()) return false;
    auto* shown = usable<QDialog>(windowName);
    if (shown == nullptr || !save(pictureName, shown->grab())) return false;
    strike(*shown, Qt::Key_Escape);
    return !shown->isVisible() || fail(std::string(windowName) + " stays");
  }

  bool picture(const char* name) { return settled() && save(name, asSeen()); }

  bool save(const char* name, const QPixmap& seen) {
    const QString number = QStringLiteral("%1-").arg(pictures_.size() + 1);
    const QString path = QDir(folder_).filePath(number + QLatin1String(name) + QStringLiteral(".png"));
    if (!seen.save(path)) return fail("cannot write " + path.toStdString());
    pictures_.push_back(path);
    return true;
  }

  // The window with the sheet that hangs in it, or the dialog that has taken its place.
  QPixmap asSeen() {
    QWidget& window = *shell_.windows().mainWindow();
    if (QWidget* dialog = QApplication::activeModalWidget()) return dialog->grab();
    QPixmap seen = window.grab();
    if (QWidget* sheet = sheetOver(window)) {
      QPainter(&seen).drawPixmap(window.mapFromGlobal(sheet->mapToGlobal(QPoint())), sheet->grab());
    }
    return seen;
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

bool takeGuidedTour(Shell& shell, const std::string& folder) {
  const QString place = QDir().absoluteFilePath(toQString(folder));
  if (!QDir().mkpath(place)) {
    std::cerr << "tarvo-manager: tour: cannot make the folder " << printable(folder) << '\n';
    return false;
  }
  Tour tour(shell, place);
  const bool isWalked = tour.walk();
  shell.program().quit();
  if (!isWalked) return false;
  for (const QString& path : tour.pictures()) std::cout << path.toStdString() << '\n';
  std::cout << shell.program().rooms().store.path().text() << '\n';
  return true;
}

}  // namespace tarvo
