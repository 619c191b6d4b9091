// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/in_step.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTableView>
#include <QToolBar>
#include <QToolButton>

#include "app/toolbar.h"
#include "platform/controls/table_view.h"
#include "platform/controls/windows.h"
#include "qt/bind/control_view.h"
#include "qt/bind/image_widget.h"
#include "qt/bind/registry.h"
#include "qt/bind/segments_widget.h"

namespace tarvo {
namespace {

std::string told(const std::string& text) { return "\"" + text + "\""; }
std::string told(const QString& text) { return told(text.toStdString()); }
std::string told(bool value) { return value ? "yes" : "no"; }
std::string told(int value) { return std::to_string(value); }

template <class Held, class Shown>
std::string differs(const char* what, const Held& held, const Shown& shown) {
  const std::string is = told(held), looks = told(shown);
  return is == looks ? std::string() : std::string(what) + " " + is + ", shown " + looks;
}

// Each compares what its kind shows; "" when all is equal.
std::string difference(const PopUpButton& control, const QComboBox& combo) {
  if (const auto found = differs("items", static_cast<int>(control.items().size()), combo.count()); !found.empty()) {
    return found;
  }
  for (int i = 0; i < combo.count(); ++i) {
    const PopUpButton::Item& item = control.items()[static_cast<std::size_t>(i)];
    if (const auto found = differs("item", item.title, combo.itemText(i)); !found.empty()) return found;
    const bool isLine = combo.itemData(i, Qt::AccessibleDescriptionRole).toString() == QLatin1String("separator");
    if (const auto found = differs("divider", item.separator, isLine); !found.empty()) return found;
  }
  return differs("index", control.indexOfSelectedItem(), combo.currentIndex());
}

std::string difference(const SegmentedControl& control, const SegmentsWidget& widget) {
  const int count = static_cast<int>(widget.segments().size());
  if (const auto found = differs("segments", control.segmentCount(), count); !found.empty()) return found;
  for (int i = 0; i < count; ++i) {
    const QToolButton& button = *widget.segments()[static_cast<std::size_t>(i)];
    const bool isEnabled = control.segments()[static_cast<std::size_t>(i)].enabled;
    if (const auto found = differs("segment enabled", isEnabled, button.isEnabledTo(&widget)); !found.empty()) {
      return found;
    }
    const auto found = differs("segment chosen", i == control.selectedSegment(), button.isChecked());
    if (!found.empty()) return found;
  }
  return {};
}

std::string cells(const TableView& control, const QTableView& table) {
  for (int row = 0; row < control.numberOfRows(); ++row) {
    for (std::size_t i = 0; i < control.columns().size(); ++i) {
      const CellValue cell = control.cell(control.columns()[i].identifier, row);
      const QModelIndex index = table.model()->index(row, static_cast<int>(i));
      if (const auto found = differs("cell", cell.text, index.data().toString()); !found.empty()) return found;
      const bool isOn = index.data(Qt::CheckStateRole).toInt() == Qt::Checked;
      if (const auto found = differs("ticked", cell.checked.value_or(false), isOn); !found.empty()) return found;
    }
  }
  return {};
}

std::string difference(const TableView& control, const QTableView& table) {
  if (const auto found = differs("rows", control.numberOfRows(), table.model()->rowCount()); !found.empty()) {
    return found;
  }
  if (const auto found = cells(control, table); !found.empty()) return found;
  std::string held, shown;
  for (int row = 0; row < control.numberOfRows(); ++row) {
    if (const auto found = differs("row shown", control.isRowShown(row), !table.isRowHidden(row)); !found.empty()) {
      return found;
    }
    if (table.selectionModel()->isRowSelected(row, {})) shown += std::to_string(row) + " ";
  }
  for (const int row : control.selectedRows()) held += std::to_string(row) + " ";
  return differs("selected rows", held, shown);
}

std::string difference(const TabView& control, const QObject& shown) {
  if (const auto* stack = qobject_cast<const QStackedWidget*>(&shown)) {
    return differs("page", control.selectedPage(), stack->currentIndex());
  }
  const auto& tabs = dynamic_cast<const QTabWidget&>(shown);
  for (int i = 0; i < tabs.count(); ++i) {
    const std::string& label = control.pages()[static_cast<std::size_t>(i)].label;
    if (const auto found = differs("tab", label, tabs.tabText(i)); !found.empty()) return found;
  }
  return differs("page", control.selectedPage(), tabs.currentIndex());
}

std::string difference(const Toolbar& control, const QToolBar& bar) {
  std::string held, shown;
  for (const std::string& identifier : control.order()) {
    held += control.item(identifier)->name();
    if (identifier == control.selectedItemIdentifier()) held += "*";
    held += " ";
  }
  for (const QAction* action : bar.actions()) {
    const auto& button = dynamic_cast<const QToolButton&>(*bar.widgetForAction(const_cast<QAction*>(action)));
    shown += button.objectName().toStdString() + (button.isChecked() ? "* " : " ");
  }
  if (const auto found = differs("items", held, shown); !found.empty()) return found;
  return differs("shown", control.isShown(), !isHiddenItself(bar));
}

template <class Held, class Shown>
std::string compare(const Registry::Entry& entry) {
  const auto* shown = dynamic_cast<const Shown*>(entry.shown);
  return shown == nullptr ? std::string() : difference(static_cast<const Held&>(*entry.control), *shown);
}

std::string ofItsKind(const Registry::Entry& entry) {
  const Control& control = *entry.control;
  switch (control.kind()) {
    case Control::Kind::popup: return compare<PopUpButton, QComboBox>(entry);
    case Control::Kind::segments: return compare<SegmentedControl, SegmentsWidget>(entry);
    case Control::Kind::tabs: return compare<TabView, QObject>(entry);
    case Control::Kind::table: return compare<TableView, QTableView>(entry);
    case Control::Kind::toolbar: return compare<Toolbar, QToolBar>(entry);
    case Control::Kind::check:
      return differs("ticked", static_cast<const CheckBox&>(control).state(),
                     dynamic_cast<QCheckBox&>(*entry.shown).isChecked());
    case Control::Kind::field:
    case Control::Kind::text:
      return differs("text", static_cast<const TextField&>(control).stringValue(),
                     entry.shown->property("text").toString());
    case Control::Kind::image:
      return differs("image", static_cast<const ImageView&>(control).image(),
                     dynamic_cast<ImageWidget&>(*entry.shown).imageName());
    case Control::Kind::button: return differs("title", control.label(), entry.shown->property("text").toString());
    case Control::Kind::menu:
      return differs("title", static_cast<const MenuItem&>(control).title(), entry.shown->property("text").toString());
    case Control::Kind::window:
      return differs("title", static_cast<const Window&>(control).title(),
                     dynamic_cast<QWidget&>(*entry.shown).windowTitle());
    case Control::Kind::view: return {};
  }
  return {};
}

// Windows, panes and toolbars come and go by rules of their own; a toolbar has no button for a hidden item.
bool hidesByItself(const Control& control, const QWidget& widget) {
  const Control::Kind kind = control.kind();
  return kind != Control::Kind::window && kind != Control::Kind::view && kind != Control::Kind::toolbar &&
         qobject_cast<QToolBar*>(widget.parentWidget()) == nullptr;
}

std::string commonDifference(const Registry::Entry& entry) {
  const auto* widget = qobject_cast<const QWidget*>(entry.shown);
  if (widget == nullptr) return {};
  const Control& control = *entry.control;
  if (const auto found = differs("enabled", control.isEnabled(), widget->isEnabledTo(widget->parentWidget()));
      !found.empty()) {
    return found;
  }
  return hidesByItself(control, *widget) ? differs("hidden", control.isHidden(), isHiddenItself(*widget))
                                         : std::string();
}

}  // namespace

std::string outOfStep(const Registry& registry) {
  for (const auto& [name, entry] : registry.entries()) {
    std::string found = commonDifference(entry);
    if (found.empty()) found = ofItsKind(entry);
    if (!found.empty()) return found.insert(0, name + ": ");
  }
  return {};
}

}  // namespace tarvo
