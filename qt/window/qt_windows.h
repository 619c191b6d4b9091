// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "platform/controls/windows.h"
#include "qt/bind/binder.h"

class QDialog;
class QWidget;

namespace tarvo {

class Interface;
class MainWindow;
class WindowFrame;

// The windows of the program on the desktop.
// Duty: show, hide and size what the core says; dialogs are built when they are first needed. Not: deciding. Before
// open() it answers as a window without decorations would.
class QtWindows : public WindowHost {
 public:
  // fixed: title bar 22, toolbar 56, screen 1440 x 900 and the interface's pane sizes, whatever the platform has; its
  // own moves are ignored. For runs whose frames must be equal everywhere.
  enum class Figures { real, fixed };
  using DialogBuilder = std::function<QDialog*(QWidget* parent)>;

  explicit QtWindows(Figures figures = Figures::real);
  ~QtWindows() override;

  // Makes the main window, not shown yet. Interface, windows and binder outlive close(), which drops every widget.
  void open(Interface& interface, Windows& windows, Binder& binder, std::vector<PageBuilder> panes);
  void close();
  void bringForward();  // the main window, and a dialog that waits for the user above it
  void addDialog(Window& window, DialogBuilder builder);
  MainWindow* mainWindow() const { return main_.get(); }  // null unless open
  QWidget* widgetOf(const Window& window) const;          // null when it is not built
  void hang(QDialog& sheet, const Window& host);          // opens it over a window of the core, as sheets do

  void show(Window& window) override;
  void hide(Window& window) override;
  void applyFrame(Window& window, bool animate) override;
  void runModal(Window& window) override;
  void stopModal(Window& window) override;
  WindowHeights heights(const Window& window) override;
  Size paneSize(Pane pane) override;
  Rect mainScreen() override;

 private:
  bool isMain(const Window& window) const;
  QDialog* opening(Window& window);
  int sheetTop(const Window& host) const;
  void makeRoomForBars();
  void fitToToolbar();
  Figures figures_;
  Interface* interface_ = nullptr;
  Windows* windows_ = nullptr;
  std::unique_ptr<MainWindow> main_;
  WindowFrame* frame_ = nullptr;
  std::map<const Window*, DialogBuilder> builders_;
  struct Dialog {
    QDialog* widget;
    QWidget* first;  // has the keyboard when it opens
  };
  std::map<const Window*, Dialog> dialogs_;  // owned by the main window
};

}  // namespace tarvo
