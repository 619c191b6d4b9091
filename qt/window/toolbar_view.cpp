// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/toolbar_view.h"

#include <QActionGroup>
#include <QContextMenuEvent>
#include <QMenu>
#include <QStyle>
#include <QToolButton>

#include "app/interface.h"
#include "qt/bind/binder.h"
#include "qt/bind/toolbar_choices.h"
#include "qt/look/metrics.h"

namespace tarvo {

ToolbarView::ToolbarView(const MenuActions& actions, Interface& interface, Binder& binder, QWidget* parent)
    : QToolBar(parent), actions_(actions), interface_(interface), binder_(binder) {
  setMovable(false);
  setIconSize({metrics::toolbarIcon, metrics::toolbarIcon});
  binder.toolbar(interface.manager.toolbar, *this);
}

int ToolbarView::shownHeight() const {
  if (!actions().isEmpty()) return sizeHint().height();
  QToolButton item;
  item.setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
  item.setIconSize(iconSize());
  item.setArrowType(Qt::DownArrow);  // a picture and a text: one without either is measured as less
  item.setText(QStringLiteral("x"));
  item.ensurePolished();
  return item.sizeHint().height() + 2 * style()->pixelMetric(QStyle::PM_ToolBarItemMargin, nullptr, this);
}

void ToolbarView::contextMenuEvent(QContextMenuEvent* event) {
  auto* menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  auto* modes = new QActionGroup(menu);
  for (int mode = 0; mode < 3; ++mode) {
    QAction* action = modes->addAction(binder_.localized(displayModeKeys[mode]));
    bindToolbarDisplay(interface_.manager.toolbar, static_cast<Toolbar::DisplayMode>(mode), *action);
    menu->addAction(action);
  }
  menu->addSeparator();
  menu->addAction(actions_.showToolbar);
  menu->addAction(actions_.customizeToolbar);
  tickShownToolbar(*menu, actions_, interface_);
  binder_.menu(*menu);
  menu->popup(event->globalPos());
}

}  // namespace tarvo
