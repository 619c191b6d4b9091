// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QAction;
class QMenu;
class QMenuBar;
class QWidget;

namespace tarvo {

class Binder;
class Interface;

// The menu commands of the main window. Owned by the window, which knows their shortcuts without any menu being open.
struct MenuActions {
  MenuActions(Interface& interface, Binder& binder, QWidget& window);
  QAction *newEJDictionary, *newJEDictionary, *newEJMemory, *newJEMemory;
  QAction *importStyle, *exportStyle, *exportWindow, *earlierStyles, *quit;
  QAction *undo, *redo;
  QAction *styles, *office, *mail, *showToolbar, *customizeToolbar;
  QAction *help, *homePage, *supportPage, *oldDictionaryPage, *about;
};

// File, Edit, View and Help. The menus get their entries when they are opened for the first time.
QMenuBar* buildMenuBar(const MenuActions& actions, Interface& interface, Binder& binder, QWidget* parent);

// Puts a tick before "Show Toolbar" as the menu opens.
void tickShownToolbar(QMenu& menu, const MenuActions& actions, const Interface& interface);

}  // namespace tarvo
