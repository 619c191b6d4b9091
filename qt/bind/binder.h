// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QString>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/controls/table_view.h"
#include "qt/bind/registry.h"
#include "qt/look/palette.h"

class QAction;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class QTableView;
class QTabWidget;
class QToolBar;
class QWidget;

// Makes the widget of a control and keeps both in step.
// Duty: show the control's state after each change, and pass on the user's gestures, one action each; these files alone
// call user…(). Not: layout, wording, deciding.
//
// A pane is one function, "QWidget* buildXxx(Interface& interface, Binder& binder, QWidget* parent)": it makes its
// widgets with the members below, lays them out and returns the pane. It keeps nothing: each widget owns what keeps it
// in step. Widgets are made in the order in which Tab reaches them. Every widget bears the control's name
// ("style.stylePopup") as objectName and its label as accessible name; the registry finds it by that name. A control is
// shown by one widget at a time. Texts are UTF-8 in the core and QString here.
namespace tarvo {

class Bundle;
class Interface;
class Texts;
class Toolbar;
class Window;

using PageBuilder = std::function<QWidget*(QWidget* parent)>;  // of one page; called when it is first shown

class Binder {
 public:
  // What it is given outlives the binder, the binder outlives the widgets.
  Binder(const Texts& texts, const Bundle& bundle, Scheme scheme);
  Binder(const Binder&) = delete;
  Binder& operator=(const Binder&) = delete;

  // parent is the owner, never null. The tag, title or place of a control is the core's affair.
  QPushButton* button(Button& control, QWidget* parent);  // titled with the control's label
  QCheckBox* check(CheckBox& control, QWidget* parent);   // likewise
  QLineEdit* field(TextField& control, QWidget* parent);
  QLabel* text(TextField& control, QWidget* parent);  // wraps; may be selected with the mouse
  void text(TextField& control, QLabel& shown);       // one that somebody built
  QWidget* image(ImageView& control, int side, QWidget* parent);
  QComboBox* popup(PopUpButton& control, QWidget* parent);
  QComboBox* detailPopup(PopUpButton& control, QWidget* parent);  // says "Not set" while it has no item selected
  QWidget* segments(SegmentedControl& control, QWidget* parent);
  QTableView* table(TableView& control, QWidget* parent, const std::vector<QString>& headers = {});  // none: no header

  // Pages of a tab view, one builder each in the order of the control's pages. pages() shows no tabs (something else
  // switches it), tabs() shows them.
  QStackedWidget* pages(TabView& control, std::vector<PageBuilder> builders, QWidget* parent);
  QTabWidget* tabs(TabView& control, std::vector<PageBuilder> builders, QWidget* parent);

  void view(View& control, QWidget& shown);             // a pane that somebody built
  QScrollArea* scroll(View& control, QWidget* parent);  // empty: give it its widget
  // The action sends. Shortcuts work without a menu being open, so the item is asked when it is chosen; in a menu it is
  // also asked when that opens, see menu().
  void menuItem(MenuItem& control, QAction& action);
  void menu(QMenu& menu);                         // asks its items when it opens
  void toolbar(Toolbar& control, QToolBar& bar);  // fills and refills the bar with the shown items
  void window(Window& control, QWidget& shown);   // title, close box, Escape of a dialog

  QString localized(std::string_view key) const;
  // The drawing of an image name ("MG", "EJTD16.tif"); null for none. Each is read once.
  QIcon icon(std::string_view image);
  Registry& registry() { return registry_; }

 private:
  const Texts& texts_;
  const Bundle& bundle_;
  Scheme scheme_;
  Registry registry_;
  std::map<std::string, QIcon, std::less<>> icons_;
};

inline QString toQString(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

// A text as a tool tip shows it: what looks like markup would be taken for it.
QString plainToolTip(std::string_view text);

}  // namespace tarvo
