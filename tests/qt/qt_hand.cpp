// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/qt/qt_hand.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScrollArea>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include "app/toolbar.h"
#include "platform/controls/windows.h"
#include "qt/bind/binder.h"
#include "qt/bind/in_step.h"
#include "qt/bind/segments_widget.h"
#include "qt/window/sheet.h"

namespace tarvo::test {

namespace {

std::string named(const QObject& object) { return object.objectName().toStdString(); }

// What the user does before: scroll until it is in sight.
void bringIntoSight(QWidget& widget) {
  QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
  for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
    if (auto* area = qobject_cast<QScrollArea*>(above)) area->ensureWidgetVisible(&widget);
  }
}

void clickAt(QWidget& widget, QPoint place, Qt::KeyboardModifiers modifiers = {}) {
  bringIntoSight(widget);
  requireInReach(widget, place);
  QTest::mouseClick(&widget, Qt::LeftButton, modifiers, place);
}

// Opens each menu of the bar until one holds the action.
QMenu& openMenuWith(QAction& action, QMenuBar& bar) {
  for (QAction* title : bar.actions()) {
    QMenu& menu = *title->menu();
    clickAt(bar, bar.actionGeometry(title).center());
    if (menu.actions().contains(&action)) return menu;
    QTest::keyClick(&menu, Qt::Key_Escape);
  }
  throw NotReachable(named(action) + " stands in no menu");
}

}  // namespace

void requireInReach(QWidget& widget, QPoint place) {
  QWidget& window = *widget.window();
  if (!widget.isVisible()) throw NotReachable(named(widget) + " cannot be seen");
  if (!widget.isEnabled()) throw NotReachable(named(widget) + " is disabled in the window");
  const QWindow* modal = QGuiApplication::modalWindow();
  const QWindow* handle = window.windowHandle();
  const bool isOfModal = modal == handle || (modal != nullptr && modal->isAncestorOf(handle));
  if (modal != nullptr && !isOfModal) throw NotReachable(named(widget) + " is shut out by a dialog");
  if (sheetOver(window) != nullptr && qobject_cast<QMenuBar*>(&widget) == nullptr)
    throw NotReachable(named(widget) + " stands under a sheet");
  QWidget* found = window.childAt(widget.mapTo(&window, place));
  while (found != nullptr && found != &widget) found = found->parentWidget();
  if (found == nullptr && &widget != &window) throw NotReachable(named(widget) + " is covered or out of sight");
}

template <class W>
W& QtHand::widget(const Control& control) const {
  W* found = registry_.find<W>(control.name());
  if (found == nullptr) throw NotReachable(control.name() + " has no such widget");
  return *found;
}

void QtHand::press(Button& button) {
  if (!button.isLaidOut()) return state_.press(button);
  auto& shown = widget<QAbstractButton>(button);
  clickAt(shown, shown.rect().center());
}

// Opened and walked through with the keyboard, which skips dividers.
void QtHand::choose(PopUpButton& popup, int index) {
  auto& combo = widget<QComboBox>(popup);
  bringIntoSight(combo);
  requireInReach(combo, combo.rect().center());
  const QModelIndex wanted = combo.model()->index(index, 0);
  if (!wanted.isValid() || !wanted.flags().testFlag(Qt::ItemIsEnabled)) {
    throw NotReachable(popup.name() + " has no item " + std::to_string(index) + " that can be chosen");
  }
  QTest::keyClick(&combo, Qt::Key_Space);
  QAbstractItemView& list = *combo.view();
  QTest::keyClick(&list, Qt::Key_Home);
  for (int steps = 0; steps < combo.count() && list.currentIndex() != wanted; ++steps) {
    QTest::keyClick(&list, Qt::Key_Down);
  }
  if (list.currentIndex() != wanted) throw NotReachable(popup.name() + ": the keys do not lead to the item");
  QTest::keyClick(&list, Qt::Key_Return);
}

void QtHand::choose(MenuItem& item) {
  auto* action = registry_.find<QAction>(item.name());
  QWidget* window = action != nullptr ? qobject_cast<QWidget*>(action->parent()) : nullptr;
  auto* bar = window != nullptr ? window->findChild<QMenuBar*>() : nullptr;
  if (bar == nullptr) throw NotReachable(item.name() + " has no menu");
  QMenu& menu = openMenuWith(*action, *bar);
  const bool isOffered = action->isEnabled() && action->isVisible();
  if (!isOffered) QTest::keyClick(&menu, Qt::Key_Escape);
  if (!isOffered) throw NotReachable(item.name() + " cannot be chosen now");
  QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(action).center());
}

void QtHand::click(SegmentedControl& control, int segment) {
  const auto& segments = widget<SegmentsWidget>(control).segments();
  if (segment < 0 || segment >= static_cast<int>(segments.size())) {
    throw NotReachable(control.name() + " has no segment " + std::to_string(segment));
  }
  QToolButton& button = *segments[static_cast<std::size_t>(segment)];
  clickAt(button, button.rect().center());
}

void QtHand::selectPage(TabView& tab, int page) {
  QTabBar& bar = *widget<QTabWidget>(tab).tabBar();
  if (page < 0 || page >= bar.count()) throw NotReachable(tab.name() + " has no page " + std::to_string(page));
  clickAt(bar, bar.tabRect(page).center());
}

void QtHand::check(CheckBox& box, bool on) {
  auto& shown = widget<QCheckBox>(box);
  if (shown.isChecked() != on) clickAt(shown, QPoint(shown.height() / 2, shown.height() / 2));
}

void QtHand::type(TextField& field, std::string_view text) {
  auto& line = widget<QLineEdit>(field);
  clickAt(line, line.rect().center());
  line.selectAll();
  if (text.empty()) return QTest::keyClick(&line, Qt::Key_Delete);
  QInputMethodEvent typed;
  typed.setCommitString(toQString(text));
  QApplication::sendEvent(&line, &typed);
}

// Moving is the window manager's; the window follows the control.
void QtHand::move(Window& window, float x, float y) { window.userMove(x, y); }

void QtHand::close(Window& window) {
  if (!window.close) throw NotReachable(window.name() + " has no close box");
  auto& shown = widget<QWidget>(window);
  requireInReach(shown, shown.rect().center());
  shown.close();
}

void QtHand::showToolbar(Toolbar& toolbar, bool shown) {
  if (toolbar.isShown() != shown) toolbar.userShow(shown);
}

void QtHand::orderToolbar(Toolbar& toolbar, const std::vector<std::string>& identifiers) {
  for (const std::string& identifier : identifiers) {
    if (toolbar.item(identifier) == nullptr) throw NotReachable("the toolbar has no item " + identifier);
  }
  toolbar.userOrder(identifiers);
}

std::string QtHand::outOfStep() { return tarvo::outOfStep(registry_); }

}  // namespace tarvo::test
