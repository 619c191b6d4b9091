// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/interface.h"

#include <algorithm>
#include <initializer_list>

#include "platform/services/texts.h"

namespace tarvo {

namespace {

std::string_view outletOf(const Control& control) {
  const std::string_view name = control.name();
  return name.substr(name.find('.') + 1);
}

}  // namespace

void Interface::connect(const Actors& actors, const Texts& texts) {
  Rooms& rooms = actors.rooms;
  styleRows(actors, texts);
  optionRows(rooms, texts);
  listRows(rooms, texts);
  userListRows(rooms);
  managerRows(actors, texts);
  addinRows(rooms, texts);
  menuRows(actors);
  pickerRows(rooms, texts);
  sheetRows(rooms, texts);
  travelRows(actors, texts);
  connectionRows(actors, texts);
  editRows(actors);
  earlierStylesRows(actors.rooms, texts);
  noticeRows(actors.rooms);
  apply(texts);
  for (PopUpButton& popup : options.detailPopups) popup.selectItemAtIndex(-1);  // no style is shown yet
}

void Interface::apply(const Texts& texts) {
  for (const Row& row : rows_) {
    Control& control = row.control;
    control.setTag(row.tag);
    if (row.window != nullptr) control.setWindow(row.window);
    if (row.tab != nullptr) control.setPage(row.tab, row.page);
    control.setLaidOut(row.laidOut);
    if (!row.laidOut) control.setHidden(true);
    control.setLabel(texts.localized(row.label.empty() ? "Label." + std::string(outletOf(control)) : row.label));
    if (!row.tip.empty()) control.setToolTip(texts.localized(row.tip));
    if (row.items) static_cast<PopUpButton&>(control).setItems(row.items());
    if (control.kind() == Control::Kind::menu) static_cast<MenuItem&>(control).setTitle(control.label());
    control.action = row.action;
  }
}

std::vector<Control*> Interface::controls() const {
  std::vector<Control*> all;
  const std::initializer_list<const Outlets*> structs{&style,      &options,  &lists,   &userLists, &newDictionary,
                                                      &naming,     &exchange, &manager, &tools,     &addins,
                                                      &connection, &help,     &picker,  &earlier,   &notices};
  for (const Outlets* outlets : structs) {
    all.insert(all.end(), outlets->controls().begin(), outlets->controls().end());
  }
  return all;
}

Control* Interface::find(std::string_view name) const {
  const bool withOwner = name.find('.') != std::string_view::npos;
  for (Control* control : controls()) {
    if (withOwner ? control->name() == name : outletOf(*control) == name) return control;
  }
  return nullptr;
}

}  // namespace tarvo
