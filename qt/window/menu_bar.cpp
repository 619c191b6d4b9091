// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/menu_bar.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include "app/interface.h"
#include "qt/bind/binder.h"

namespace tarvo {
namespace {

QAction* boundAction(MenuItem& item, Binder& binder, QWidget& window, const QKeySequence& shortcut = {}) {
  auto* action = new QAction(&window);
  action->setShortcut(shortcut);
  binder.menuItem(item, *action);
  window.addAction(action);
  return action;
}

QMenu* lazyMenu(QMenuBar& bar, Binder& binder, const char* titleKey, QList<QAction*> entries) {
  QMenu* menu = bar.addMenu(binder.localized(titleKey));
  // Connected before the binder asks the entries.
  QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, entries = std::move(entries)] {
    if (!menu->isEmpty()) return;
    for (QAction* entry : entries) entry != nullptr ? menu->addAction(entry) : void(menu->addSeparator());
  });
  binder.menu(*menu);
  return menu;
}

}  // namespace

MenuActions::MenuActions(Interface& interface, Binder& binder, QWidget& window) {
  ManagerOutlets& manager = interface.manager;
  NewDictionaryOutlets& makers = interface.newDictionary;
  newEJDictionary = boundAction(makers.newEJUDMenu, binder, window, Qt::CTRL | Qt::Key_N);
  newJEDictionary = boundAction(makers.newJEUDMenu, binder, window);
  newEJMemory = boundAction(makers.newEJTMAMenu, binder, window);
  newJEMemory = boundAction(makers.newJETMAMenu, binder, window);
  importStyle = boundAction(interface.exchange.importMenu, binder, window, Qt::CTRL | Qt::Key_O);
  exportStyle = boundAction(interface.exchange.exportMenu, binder, window, Qt::CTRL | Qt::Key_E);
  exportWindow = boundAction(interface.exchange.exportWindowMenu, binder, window, Qt::CTRL | Qt::SHIFT | Qt::Key_E);
  earlierStyles = boundAction(interface.style.earlierStylesMenu, binder, window, Qt::CTRL | Qt::Key_H);
  undo = boundAction(interface.style.undoMenu, binder, window, Qt::CTRL | Qt::Key_Z);
  redo = boundAction(interface.style.redoMenu, binder, window, Qt::CTRL | Qt::SHIFT | Qt::Key_Z);
  quit = boundAction(interface.style.quitMenu, binder, window, Qt::CTRL | Qt::Key_Q);
  styles = boundAction(manager.styleManagerMenu, binder, window, Qt::CTRL | Qt::Key_1);
  office = boundAction(manager.officeAddinMenu, binder, window, Qt::CTRL | Qt::Key_2);
  mail = boundAction(manager.mailMenu, binder, window, Qt::CTRL | Qt::Key_3);
  showToolbar = boundAction(manager.toolbarMenu, binder, window);
  showToolbar->setCheckable(true);
  customizeToolbar = boundAction(manager.customizeToolbarMenu, binder, window);
  help = boundAction(interface.help.helpMenu, binder, window, Qt::Key_F1);
  homePage = boundAction(interface.help.homepageMenu, binder, window);
  supportPage = boundAction(interface.help.supportMenu, binder, window);
  oldDictionaryPage = boundAction(interface.help.oldTechMenu, binder, window);
  about = boundAction(manager.aboutMenu, binder, window);
}

QMenuBar* buildMenuBar(const MenuActions& actions, Interface& interface, Binder& binder, QWidget* parent) {
  auto* bar = new QMenuBar(parent);
  lazyMenu(
      *bar, binder, "Menu.File",
      {actions.newEJDictionary, actions.newJEDictionary, nullptr, actions.newEJMemory, actions.newJEMemory, nullptr,
       actions.importStyle, actions.exportStyle, actions.exportWindow, actions.earlierStyles, nullptr, actions.quit});
  lazyMenu(*bar, binder, "Menu.Edit", {actions.undo, actions.redo});
  QMenu* view =
      lazyMenu(*bar, binder, "Menu.View",
               {actions.styles, actions.office, actions.mail, nullptr, actions.showToolbar, actions.customizeToolbar});
  tickShownToolbar(*view, actions, interface);
  lazyMenu(*bar, binder, "Menu.Help",
           {actions.help, nullptr, actions.homePage, actions.supportPage, actions.oldDictionaryPage, nullptr,
            actions.about});
  return bar;
}

void tickShownToolbar(QMenu& menu, const MenuActions& actions, const Interface& interface) {
  QObject::connect(&menu, &QMenu::aboutToShow, actions.showToolbar, [action = actions.showToolbar, &interface] {
    action->setChecked(interface.manager.toolbar.isShown());
  });
}

}  // namespace tarvo
