// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <functional>
#include <vector>

#include "platform/controls/pane.h"
#include "qt/bind/binder.h"
#include "qt/window/menu_bar.h"

class QStackedWidget;

namespace tarvo {

class FrameAnimation;
class Interface;
class ToolbarView;

// The main window: menu bar, toolbar, the shown pane, and the line of notices at the foot.
// Duty: lay them out and change its size. Not: its place on the screen, or deciding which pane is shown. The user
// cannot resize it; panes are built when they are first shown or measured.
class MainWindow : public QWidget {
 public:
  // panes: a builder each, in the order of the pane tags.
  MainWindow(Interface& interface, Binder& binder, std::vector<PageBuilder> panes);

  int menuHeight() const;
  int toolbarHeight() const;  // as high as it is when it is shown
  QSize minimumOfPane(Pane pane);
  void resizeTo(QSize client, bool animate);
  void buildPanes();  // the shown one
  // When the window has come up first: the keyboard begins at the toolbar or, where that is hidden, in the pane.
  void beginKeyboard();

  std::function<void()> toolbarChangedHeight;
  std::function<void(std::vector<std::string> paths)> styleFilesDropped;  // at least one

 private:
  void fitPane();
  void giveKeyboardToPane();
  Interface& interface_;
  Binder& binder_;
  std::vector<PageBuilder> builders_;
  MenuActions actions_;
  QMenuBar* menuBar_;
  ToolbarView* toolbar_;
  QWidget* paneArea_;
  QWidget* dropMark_ = nullptr;
  QStackedWidget* panes_ = nullptr;
  FrameAnimation* animation_;
  bool hadKeyboard_ = false;  // the pane that is hidden while the window moves

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dragLeaveEvent(QDragLeaveEvent* event) override;
  void dropEvent(QDropEvent* event) override;
};

}  // namespace tarvo
