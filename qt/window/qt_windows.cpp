// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/qt_windows.h"

#include <QApplication>
#include <QDialog>
#include <QEventLoop>
#include <algorithm>
#include <cmath>
#include <utility>

#include "app/interface.h"
#include "app/panes.h"
#include "app/window_geometry.h"
#include "qt/bind/window_frame.h"
#include "qt/window/frame_animation.h"
#include "qt/window/main_window.h"
#include "qt/window/sheet.h"

namespace tarvo {
namespace {

constexpr int fixedTitle = 22;
constexpr float fixedToolbar = 56;
constexpr Rect fixedScreen{0, 0, 1440, 900};

// The one that its builder chose, else the first that Tab reaches.
QWidget* firstWithKeyboard(QDialog& dialog) {
  if (dialog.focusWidget() != nullptr) return dialog.focusWidget();
  QWidget* first = dialog.nextInFocusChain();
  while (first != &dialog && (first->focusPolicy() & Qt::TabFocus) == 0) first = first->nextInFocusChain();
  return first == &dialog ? nullptr : first;
}

void bringToFront(QWidget& window) {
  window.setWindowState(window.windowState() & ~Qt::WindowMinimized);
  window.raise();
  window.activateWindow();
}

}  // namespace

QtWindows::QtWindows(Figures figures) : figures_(figures) {}

QtWindows::~QtWindows() = default;

void QtWindows::open(Interface& interface, Windows& windows, Binder& binder, std::vector<PageBuilder> panes) {
  interface_ = &interface;
  windows_ = &windows;
  main_ = std::make_unique<MainWindow>(interface, binder, std::move(panes));
  frame_ = new WindowFrame(interface.manager.myWindow, *main_, figures_ == Figures::fixed ? fixedTitle : -1);
  main_->toolbarChangedHeight = [this] { fitToToolbar(); };
  makeRoomForBars();
}

void QtWindows::close() {
  dialogs_.clear();
  builders_.clear();
  frame_ = nullptr;
  main_.reset();
}

void QtWindows::bringForward() {
  if (main_ == nullptr) return;
  bringToFront(*main_);
  if (QWidget* waiting = QApplication::activeModalWidget()) bringToFront(*waiting);
}

void QtWindows::addDialog(Window& window, DialogBuilder builder) { builders_[&window] = std::move(builder); }

bool QtWindows::isMain(const Window& window) const {
  return main_ != nullptr && &window == &interface_->manager.myWindow;
}

QWidget* QtWindows::widgetOf(const Window& window) const {
  if (isMain(window)) return main_.get();
  const auto built = dialogs_.find(&window);
  return built == dialogs_.end() ? nullptr : built->second.widget;
}

int QtWindows::sheetTop(const Window& host) const {
  if (!isMain(host)) return 0;
  return main_->menuHeight() + (interface_->manager.toolbar.isShown() ? main_->toolbarHeight() : 0);
}

// Built when it opens for the first time. Each time the keyboard begins at the same place.
QDialog* QtWindows::opening(Window& window) {
  if (widgetOf(window) == nullptr) {
    const auto builder = builders_.find(&window);
    if (builder == builders_.end()) return nullptr;
    QDialog* built = builder->second(main_.get());
    dialogs_[&window] = {built, firstWithKeyboard(*built)};
  }
  const Dialog& dialog = dialogs_[&window];
  if (dialog.first != nullptr) dialog.first->setFocus();
  return dialog.widget;
}

void QtWindows::show(Window& window) {
  if (isMain(window)) {
    main_->buildPanes();
    applyFrame(window, false);
    const bool hadKeyboard = main_->focusWidget() != nullptr;
    main_->show();
    if (!hadKeyboard) main_->beginKeyboard();
    return;
  }
  QDialog* shown = opening(window);
  if (shown == nullptr) return;
  if (const Window* host = windows_->hostOf(window)) return hang(*shown, *host);
  shown->isVisible() ? bringToFront(*shown) : shown->show();
}

void QtWindows::hang(QDialog& sheet, const Window& host) {
  QWidget* below = widgetOf(host);
  below != nullptr ? openSheet(sheet, *below, sheetTop(host)) : sheet.open();
}

void QtWindows::hide(Window& window) {
  if (QWidget* shown = widgetOf(window)) shown->hide();
}

void QtWindows::applyFrame(Window& window, bool animate) {
  if (!isMain(window)) return;
  frame_->place();
  main_->resizeTo(frame_->clientSize(), animate && figures_ == Figures::real && isAnimationWanted(*main_));
}

void QtWindows::runModal(Window& window) {
  QDialog* run = opening(window);
  if (run == nullptr) return;
  run->setWindowModality(Qt::ApplicationModal);
  run->exec();
}

void QtWindows::stopModal(Window& window) {
  const auto run = dialogs_.find(&window);
  if (run != dialogs_.end()) run->second.widget->done(0);
}

WindowHeights QtWindows::heights(const Window& window) {
  const Toolbar* toolbar = isMain(window) ? &interface_->manager.toolbar : nullptr;
  const bool isFixed = figures_ == Figures::fixed;
  const int title = isFixed ? fixedTitle : frame_ != nullptr ? frame_->decorationHeight() + main_->menuHeight() : 0;
  const float bar = isFixed ? fixedToolbar : main_ != nullptr ? static_cast<float>(main_->toolbarHeight()) : 0;
  WindowHeights heights;
  heights.hasToolbar = isFixed || toolbar != nullptr;
  heights.toolbarHidden = toolbar != nullptr && !toolbar->isShown();
  heights.contentHeightToggled = window.frame().height;
  heights.contentHeight = window.frame().height - static_cast<float>(title);
  heights.contentViewHeight = heights.contentHeight - (heights.toolbarHidden ? 0 : bar);
  return heights;
}

Size QtWindows::paneSize(Pane pane) {
  const Size least = rowOf(pane).size;
  if (figures_ == Figures::fixed || main_ == nullptr) return least;
  const QSize needed = main_->minimumOfPane(pane);
  return {std::max(least.width, static_cast<float>(needed.width())),
          std::max(least.height, static_cast<float>(needed.height()))};
}

Rect QtWindows::mainScreen() { return figures_ == Figures::fixed ? fixedScreen : primaryScreen(); }

// The program made its first frame before the bars were known; it stays as far above the middle of the screen. A frame
// with the right height is not moved by the first pane switch.
void QtWindows::makeRoomForBars() {
  Window& window = interface_->manager.myWindow;
  const WindowHeights now = heights(window);
  Rect frame = window.frame();
  const float height = rowOf(Pane::style).size.height + titlebarHeight(now) + tarvo::toolbarHeight(now);
  frame.y = std::floor(frame.y - (height - frame.height) * 2 / 3);
  frame.height = height;
  window.setFrameInPlace(frame);
}

// Icons without texts, say, need less room: the pane keeps its size and the window its top edge.
void QtWindows::fitToToolbar() {
  Window& window = interface_->manager.myWindow;
  const WindowHeights now = heights(window);
  const Size pane = paneSize(paneForTag(interface_->manager.myTabView.selectedPage()).value_or(Pane::style));
  window.setFrameInPlace(paneFrame(window.frame(), pane, titlebarHeight(now), tarvo::toolbarHeight(now)));
  applyFrame(window, false);
}

}  // namespace tarvo
