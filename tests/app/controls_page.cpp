// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/app/controls_page.h"

#include <map>

#include "app/interface.h"

namespace tarvo::test {

namespace {

const char* kindName(Control::Kind kind) {
  static const std::map<Control::Kind, const char*> names{
      {Control::Kind::popup, "pop-up"},   {Control::Kind::segments, "segments"}, {Control::Kind::tabs, "tabs"},
      {Control::Kind::table, "table"},    {Control::Kind::button, "button"},     {Control::Kind::check, "check box"},
      {Control::Kind::field, "field"},    {Control::Kind::text, "text"},         {Control::Kind::image, "image"},
      {Control::Kind::view, "view"},      {Control::Kind::window, "window"},     {Control::Kind::menu, "menu"},
      {Control::Kind::toolbar, "toolbar"}};
  return names.at(kind);
}

std::string placeOf(const Row& row) {
  if (row.tab != nullptr)
    return "`" + row.tab->name() + "` " + row.tab->pages()[static_cast<std::size_t>(row.page)].identifier;
  if (row.window != nullptr && row.window != &row.control) {
    return "`" + row.window->name() + "`" + (row.laidOut ? "" : ", not laid out");
  }
  return "";
}

}  // namespace

std::string controlsPage(const Interface& interface) {
  std::string page =
      "# Controls\n\n"
      "Every control of the program by the name under which scripts, tests and the window know it. Printed from the "
      "interface table (`app/interface*.cpp`); a test compares. `TARVO_WRITE_CONTROLS=1 test_app` prints it anew.\n\n"
      "| name | kind | tag | stands on | called (text key) |\n|---|---|--:|---|---|\n";
  for (const Row& row : interface.rows()) {
    page += "| `" + row.control.name() + "` | " + kindName(row.control.kind()) + " | " + std::to_string(row.tag) +
            " | " + placeOf(row) + " | " + row.control.label() + " |\n";
  }
  return page;
}

}  // namespace tarvo::test
