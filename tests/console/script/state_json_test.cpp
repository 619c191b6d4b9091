// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/state_json.h"

#include <gtest/gtest.h>

#include "app/toolbar.h"
#include "platform/controls/table_view.h"
#include "platform/controls/windows.h"

namespace tarvo::test {
namespace {

struct SomeOutlets : Outlets {
  SomeOutlets() : Outlets("owner") {}
  PopUpButton popup{*this, "popup"};
  SegmentedControl segments{*this, "segments"};
  TabView tabs{*this, "tabs"};
  TableView table{*this, "table"};
  Button button{*this, "button"};
  CheckBox check{*this, "check"};
  TextField field{*this, "field"}, text{*this, "text", Control::Kind::text};
  ImageView image{*this, "image"};
  View view{*this, "view"};
  Window window{*this, "window"};
  MenuItem menu{*this, "menu"};
  Toolbar toolbar{*this, "toolbar"};
  Button first{*this, "first"}, second{*this, "second"};
};

struct TwoRows : TableDataSource {
  int numberOfRowsInTableView(TableView&) override { return count; }
  CellValue objectValueForTableColumn(TableView&, std::string_view column, int row) override {
    if (column == "check") return {.checked = row == 1};
    return {.text = "row " + std::to_string(row), .image = "EJTD16.tif"};
  }
  int count = 2;
};

// The object without the keys that every control has.
std::string own(const Control& control) {
  const Json state = stateOf(control);
  Json::Object object = std::get<Json::Object>(state.value());
  for (const char* key : {"name", "kind", "enabled", "visible"}) EXPECT_EQ(object.erase(key), 1U) << key;
  return writeJson(object);
}

TEST(StateJson, everyControlHasNameKindAndReach) {
  SomeOutlets outlets;
  outlets.button.setEnabled(false);
  outlets.view.setHidden(true);
  EXPECT_EQ(writeJson(stateOf(outlets.button)),
            R"({"enabled":false,"kind":"button","name":"owner.button","visible":true})");
  EXPECT_EQ(writeJson(stateOf(outlets.view)), R"({"enabled":true,"kind":"view","name":"owner.view","visible":false})");
}

TEST(StateJson, rowsThatAFilterHidesAreNullAndKeepTheirNumbers) {
  SomeOutlets outlets;
  TwoRows source;
  outlets.table.setColumns({{.identifier = "name"}});
  outlets.table.setDataSource(&source);
  outlets.table.reloadData();
  outlets.table.setRowFilter([](int row) { return row == 1; });
  EXPECT_EQ(own(outlets.table), R"({"cells":[null,{"name":"row 1"}],"icon":"","rows":2,"selectedRows":[]})");
}

TEST(StateJson, popupsShowDividersAsNull) {
  SomeOutlets outlets;
  EXPECT_EQ(own(outlets.popup), R"({"items":[],"selected":-1,"tags":[]})");
  outlets.popup.setItems({{"one", 5}, {"line", 6, true}, {"", 7}});
  EXPECT_EQ(own(outlets.popup), R"({"items":["one",null,""],"selected":0,"tags":[5,6,7]})");
}

TEST(StateJson, segmentsTabsAndBoxes) {
  SomeOutlets outlets;
  outlets.segments.setSegments({{}, {}, {}});
  EXPECT_EQ(own(outlets.segments), R"({"segments":3,"selected":-1})");
  EXPECT_EQ(own(outlets.tabs), R"({"label":"","page":0})");
  outlets.tabs.setPages({{"A", "First"}, {"B", "Second"}});
  outlets.tabs.selectPage(1);
  EXPECT_EQ(own(outlets.tabs), R"({"label":"Second","page":1})");
  outlets.check.setState(true);
  EXPECT_EQ(own(outlets.check), R"({"on":true})");
}

TEST(StateJson, tablesShowTheirRowsAsReloadedLast) {
  SomeOutlets outlets;
  TwoRows rows;
  outlets.table.setColumns({{.identifier = "check", .checkBox = true}, {.identifier = "name", .icon = true}});
  outlets.table.setDataSource(&rows);
  EXPECT_EQ(own(outlets.table), R"({"cells":[],"icon":"","rows":0,"selectedRows":[]})");
  outlets.table.reloadData();
  outlets.table.selectRows({1});
  EXPECT_EQ(own(outlets.table), R"({"cells":[{"check":false,"name":"row 0"},{"check":true,"name":"row 1"}],)"
                                R"("icon":"EJTD16.tif","rows":2,"selectedRows":[1]})");
  rows.count = -1;
  outlets.table.reloadData();
  EXPECT_EQ(own(outlets.table), R"({"cells":[],"icon":"","rows":-1,"selectedRows":[]})");
}

TEST(StateJson, textsAndImages) {
  SomeOutlets outlets;
  outlets.field.setStringValue("あ");
  outlets.image.setImage("QB.tif");
  EXPECT_EQ(own(outlets.field), R"({"text":"あ"})");
  EXPECT_EQ(own(outlets.text), R"({"text":""})");
  EXPECT_EQ(own(outlets.image), R"({"icon":"QB.tif"})");
}

TEST(StateJson, windowsShowFrameAndTitle) {
  SomeOutlets outlets;
  outlets.window.setTitle("Styles");
  outlets.window.setFrameInPlace({1, -2.5, 300, 400});
  EXPECT_EQ(own(outlets.window), R"({"frame":[1,-2.5,300,400],"shown":false,"title":"Styles"})");
}

TEST(StateJson, menuItemsAreEnabledAsTheirRulesSay) {
  SomeOutlets outlets;
  EXPECT_EQ(stateOf(outlets.menu), *readJson(R"({"name":"owner.menu","kind":"menu","enabled":true,"visible":true})"));
  outlets.menu.validate = [](const MenuItem&) { return false; };
  EXPECT_EQ(stateOf(outlets.menu), *readJson(R"({"name":"owner.menu","kind":"menu","enabled":false,"visible":true})"));
}

TEST(StateJson, toolbarsShowTheirItems) {
  SomeOutlets outlets;
  outlets.toolbar.setAllowedItems({{"A", &outlets.first}, {"B", &outlets.second}});
  outlets.toolbar.setSelectedItemIdentifier("B");
  outlets.toolbar.setShown(false);
  EXPECT_EQ(writeJson(stateOf(outlets.toolbar)),
            R"({"enabled":true,"kind":"toolbar","name":"owner.toolbar","segments":["A","B"],"selected":"B",)"
            R"("visible":false})");
}

}  // namespace
}  // namespace tarvo::test
