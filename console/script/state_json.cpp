// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/state_json.h"

#include <array>

#include "app/toolbar.h"
#include "platform/controls/table_view.h"
#include "platform/controls/windows.h"

namespace tarvo {

namespace {

constexpr std::array<const char*, 13> kindNames{"popup", "segments", "tabs", "table",  "button", "check",  "field",
                                                "text",  "image",    "view", "window", "menu",   "toolbar"};

Json list(const auto& values) { return Json::List(values.begin(), values.end()); }

void addPopup(Json::Object& state, const PopUpButton& popup) {
  Json::List items, tags;
  for (const PopUpButton::Item& item : popup.items()) {
    if (item.separator)
      items.emplace_back();
    else
      items.emplace_back(item.title);
    tags.emplace_back(item.tag);
  }
  state.emplace("items", std::move(items));
  state.emplace("tags", std::move(tags));
  state.emplace("selected", popup.indexOfSelectedItem());
}

void addTabs(Json::Object& state, const TabView& tab) {
  const auto page = static_cast<std::size_t>(tab.selectedPage());
  const bool exists = page < tab.pages().size();
  state.emplace("page", tab.selectedPage());
  state.emplace("label", exists ? tab.pages()[page].label : "");
}

Json cells(const TableView& table) {
  Json::List rows;
  for (int row = 0; row < table.numberOfRows(); ++row) {
    if (!table.isRowShown(row)) {
      rows.emplace_back();
      continue;
    }
    Json::Object values;
    for (const TableView::Column& column : table.columns()) {
      const CellValue value = table.cell(column.identifier, row);
      values.emplace(column.identifier, value.checked ? Json(*value.checked) : Json(value.text));
    }
    rows.emplace_back(std::move(values));
  }
  return rows;
}

// The image before the texts of the rows.
std::string icon(const TableView& table) {
  for (const TableView::Column& column : table.columns()) {
    if (column.icon && table.numberOfRows() > 0) return table.cell(column.identifier, 0).image;
  }
  return {};
}

void addTable(Json::Object& state, const TableView& table) {
  state.emplace("rows", table.reportedRows());
  state.emplace("cells", cells(table));
  state.emplace("icon", icon(table));
  state.emplace("selectedRows", list(table.selectedRows()));
}

void addWindow(Json::Object& state, const Window& window) {
  const Rect& frame = window.frame();
  state.emplace(
      "frame", Json::List{jsonNumber(frame.x), jsonNumber(frame.y), jsonNumber(frame.width), jsonNumber(frame.height)});
  state.emplace("title", window.title());
  state.emplace("shown", window.isShown());
}

template <class As>
const As& as(const Control& control) {
  return static_cast<const As&>(control);
}

void addOwn(Json::Object& state, const Control& control) {
  switch (control.kind()) {
    case Control::Kind::popup: return addPopup(state, as<PopUpButton>(control));
    case Control::Kind::tabs: return addTabs(state, as<TabView>(control));
    case Control::Kind::table: return addTable(state, as<TableView>(control));
    case Control::Kind::window: return addWindow(state, as<Window>(control));
    case Control::Kind::segments:
      state.emplace("segments", as<SegmentedControl>(control).segmentCount());
      state.emplace("selected", as<SegmentedControl>(control).selectedSegment());
      return;
    case Control::Kind::toolbar:
      state.emplace("segments", list(as<Toolbar>(control).order()));
      state.emplace("selected", as<Toolbar>(control).selectedItemIdentifier());
      return;
    case Control::Kind::check: state.emplace("on", as<CheckBox>(control).state()); return;
    case Control::Kind::field:
    case Control::Kind::text: state.emplace("text", as<TextField>(control).stringValue()); return;
    case Control::Kind::image: state.emplace("icon", as<ImageView>(control).image()); return;
    case Control::Kind::menu:
    case Control::Kind::button:
    case Control::Kind::view: return;
  }
}

bool isEnabled(const Control& control) {
  return control.kind() == Control::Kind::menu ? as<MenuItem>(control).isValid() : control.isEnabled();
}

bool isVisible(const Control& control) {
  const bool hiddenToolbar = control.kind() == Control::Kind::toolbar && !as<Toolbar>(control).isShown();
  return !control.isHidden() && !hiddenToolbar;
}

}  // namespace

Json stateOf(const Control& control) {
  Json::Object state{{"name", control.name()},
                     {"kind", kindNames.at(static_cast<std::size_t>(control.kind()))},
                     {"enabled", isEnabled(control)},
                     {"visible", isVisible(control)}};
  addOwn(state, control);
  return state;
}

}  // namespace tarvo
