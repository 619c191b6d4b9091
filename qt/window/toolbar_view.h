// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QToolBar>

#include "qt/window/menu_bar.h"

namespace tarvo {

// The toolbar of the main window: an item for each pane, the shown one on a plate, and a menu of its own for
// customising.
class ToolbarView : public QToolBar {
 public:
  ToolbarView(const MenuActions& actions, Interface& interface, Binder& binder, QWidget* parent);
  int shownHeight() const;  // as high as it is with its items, also before it has them

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  const MenuActions& actions_;
  Interface& interface_;
  Binder& binder_;
};

}  // namespace tarvo
