// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <vector>

#include "platform/plist/plist_writer.h"
#include "tests/style/exchange_world.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

// Styles that come from a file or the engine, as the whole program takes and shows them.
namespace tarvo::test {

inline const std::string importFailed = "alert ImportPlistErrorHeader / ImportPlistErrorMessage";
inline const std::string question = "alert OpenImportHeader / OpenImportMessage";

class StyleTravel : public testing::Test {
 protected:
  StyleTravel() { test_.writeStyles(sampleRoot()); }
  void start(std::deque<bool> probes = {true, false}) {  // the launch shows nothing
    test_.engine.probes = std::move(probes);
    ASSERT_TRUE(test_.program().start());
    test_.program().rooms().store.didWrite = [this] { test_.log.emplace_back("wrote"); };
    test_.log.clear();
  }
  std::string fileWith(const PropertyList& style) {
    test_.root.write("in.whstyle", writePropertyList(style));
    return "/in.whstyle";
  }
  void choose(int index) {
    ASSERT_TRUE(test_.interface().style.stylePopup.userChoose(index));
    test_.log.clear();
  }
  bool import(const std::string& path) {
    return test_.program().styles().readImportStyle(test_.product->locations().onDisk(ProductPath(path)));
  }
  Dictionary record(int index) { return *test_.program().rooms().store.getStyleAtIndex(index); }
  std::vector<int> options() {
    std::vector<int> all;
    for (PopUpButton& popup : test_.interface().options.indexPopups) all.push_back(popup.indexOfSelectedItem());
    return all;
  }
  std::vector<std::string> rows(TableView& table) {
    std::vector<std::string> all;
    for (int row = 0; row < table.numberOfRows(); ++row) all.push_back(table.cell("name", row).text);
    return all;
  }
  // An engine with a newer set of two styles without dictionaries.
  void setNewerStyles(const char* secondName = "Two") {
    Dictionary first = record(1), second = record(1);
    first.set("Name", "One");
    second.set("Name", secondName);
    test_.engine.holds = test_.engine.isNewer = true;
    test_.engine.held = {first, second};
    test_.engine.heldStamp = "P9";
    test_.program().defaults().set("LastUpdate", "U0");
    test_.log.clear();
  }
  void post() { test_.program().notifications().post("SendPlistNoti", "whoever"); }
  Interface& interface() { return test_.interface(); }

  TestProgram test_;
};

}  // namespace tarvo::test
