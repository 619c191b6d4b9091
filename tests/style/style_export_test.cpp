// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_exchange.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_reader.h"
#include "tests/style/exchange_fixture.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

TEST_F(StyleExchangeTest, proposesTheNameOfTheStyleInTheUsersHome) {
  world_.pane.stylePopup.selectItemAtIndex(3);
  world_.exchange.exportStyle();
  ASSERT_EQ(world_.panels.saves.size(), 1U);
  EXPECT_EQ(world_.panels.saves[0].name, "Beta");
  EXPECT_EQ(world_.panels.saves[0].requiredType, "whstyle");
  EXPECT_EQ(world_.panels.saves[0].folder, DiskPath("/product/Users/taro"));
  EXPECT_EQ(world_.panels.sheetHost, &world_.pane.myWindow);
  EXPECT_EQ(world_.files.writes(), 0);
  world_.panels.endSavePanel(0, "");
  EXPECT_EQ(world_.files.writes(), 0);
  EXPECT_EQ(world_.log, Log{"save panel"});
}

TEST_F(StyleExchangeTest, proposesNamesThatFilesCanHave) {
  for (const auto& [name, proposed] : {std::pair("a/b:c", "a_b:c"), std::pair("", "style"), std::pair("/", "_")}) {
    Dictionary style = record(1);
    style.set("Name", name);
    world_.store.setStyle(1, style);
    world_.pane.stylePopup.selectItemAtIndex(1);
    world_.exchange.exportStyle();
    EXPECT_EQ(world_.panels.saves.back().name, proposed);
  }
}

TEST_F(StyleExchangeTest, writesTheRecordOfTheMemoryAndNothingElse) {
  world_.engine.online = true;
  world_.pane.stylePopup.selectItemAtIndex(3);
  world_.store.fillInMissingOptions();
  world_.files.put("/styles.plist", "something else meanwhile");
  world_.exchange.exportStyle();
  save("/out.whstyle");
  EXPECT_EQ(readPropertyList(world_.files.bytes("/out.whstyle")), PropertyList(record(3)));
  EXPECT_EQ(world_.log, Log{"save panel"});
  EXPECT_EQ(world_.files.writes(), 1);
  EXPECT_EQ(world_.files.bytes("/styles.plist"), "something else meanwhile");
  EXPECT_EQ(world_.defaults.find("LastUpdate"), nullptr);
}

TEST_F(StyleExchangeTest, writesNothingOverWhatTheManagerKeepsForItself) {
  world_.files.put("/Earlier/set.plist", "earlier");
  for (const char* path : {"/styles.plist", "/defaults.plist", "/Earlier/set.plist", "/Earlier/new.whstyle"}) {
    world_.log.clear();
    world_.exchange.exportStyle();
    save(path);
    EXPECT_EQ(world_.log, (Log{"save panel", exportFailed})) << path;
  }
  EXPECT_EQ(world_.files.writes(), 0);
}

TEST_F(StyleExchangeTest, exportsNoOptionThatTheStyleLacks) {
  Dictionary style = record(1);
  style.set("EJ", Dictionary());
  world_.store.setStyle(1, style);
  world_.store.fillInMissingOptions();
  world_.pane.stylePopup.selectItemAtIndex(1);
  world_.exchange.exportStyle();
  save("/out.whstyle");
  const auto exported = readPropertyList(world_.files.bytes("/out.whstyle"));
  ASSERT_TRUE(exported);
  EXPECT_TRUE(exported->dictionary()->dictionary("EJ")->empty());
}

TEST_F(StyleExchangeTest, writesTheStyleThatIsChosenWhenThePanelEnds) {
  world_.pane.stylePopup.selectItemAtIndex(3);
  world_.exchange.exportStyle();
  world_.pane.stylePopup.selectItemAtIndex(1);
  save("/out.whstyle");
  EXPECT_EQ(readPropertyList(world_.files.bytes("/out.whstyle")), PropertyList(record(1)));
}

TEST_F(StyleExchangeTest, tellsThatThereIsNothingToExport) {
  world_.pane.stylePopup.selectItemAtIndex(-1);
  world_.exchange.exportStyle();
  EXPECT_EQ(world_.log, Log{exportFailed});
}

TEST_F(StyleExchangeTest, tellsThatNothingWasWritten) {
  world_.pane.stylePopup.selectItemAtIndex(3);
  world_.exchange.exportStyle();
  world_.files.refuse(MemoryFiles::Operation::write, "/out.whstyle");
  save("/out.whstyle");
  EXPECT_EQ(world_.log, (Log{"save panel", exportFailed}));
  world_.log.clear();
  world_.exchange.exportStyle();
  world_.pane.stylePopup.selectItemAtIndex(-1);
  save("/other.whstyle");
  EXPECT_EQ(world_.log, (Log{"save panel", exportFailed})) << "no style is chosen any more";
  EXPECT_EQ(world_.files.writes(), 0);
}

TEST_F(StyleExchangeTest, listsEveryRecordInTheExportWindow) {
  std::vector<std::string> titles;
  bool separators = false;
  world_.host.whileModal = [&](Window& window) {
    EXPECT_EQ(&window, &world_.outlets.exportWindow);
    for (const PopUpButton::Item& item : world_.outlets.exportStylePopup.items()) {
      titles.push_back(item.title);
      separators = separators || item.separator;
    }
    world_.exchange.closeExportWindow();
  };
  world_.exchange.exportStyle2();
  EXPECT_EQ(titles, (std::vector<std::string>{"NomalStyle", "Alpha", "keyNameSeparator", "Beta"}));
  EXPECT_FALSE(separators);
  EXPECT_EQ(world_.host.stops, 1);
  EXPECT_FALSE(world_.outlets.exportWindow.isShown());
}

TEST_F(StyleExchangeTest, writesThePanesStyleFromTheExportWindow) {
  world_.pane.stylePopup.selectItemAtIndex(1);
  world_.host.whileModal = [&](Window&) {
    world_.outlets.exportStylePopup.userChoose(3);
    world_.exchange.exportButtonAction();
    EXPECT_EQ(world_.panels.saves.back().name, "Beta");
    EXPECT_EQ(world_.panels.sheetHost, &world_.outlets.exportWindow);
    save("/out.whstyle");
    EXPECT_TRUE(world_.outlets.exportWindow.isShown()) << "more can be exported";
  };
  world_.exchange.exportStyle2();
  EXPECT_EQ(readPropertyList(world_.files.bytes("/out.whstyle")), PropertyList(record(1)));
}

TEST(StyleExchangeWithoutStyles, runsAnEmptyExportWindow) {
  ExchangeWorld world;
  world.open({});
  world.host.whileModal = [&](Window&) {
    EXPECT_TRUE(world.outlets.exportStylePopup.items().empty());
    world.exchange.exportButtonAction();
    EXPECT_EQ(world.log, Log{exportFailed});
  };
  world.exchange.exportStyle2();
  EXPECT_FALSE(world.outlets.exportWindow.isShown());
}

TEST_F(StyleExchangeTest, carriesAStyleToAnotherPlace) {
  world_.pane.stylePopup.selectItemAtIndex(3);
  world_.exchange.exportStyle();
  save("/out.whstyle");
  ASSERT_TRUE(world_.import("/out.whstyle", 1, "Alpha"));
  Dictionary expected = record(3);
  expected.set("Name", "Alpha");
  expected.set("ID", 1);
  EXPECT_EQ(record(1), expected);
  ASSERT_TRUE(world_.import("/out.whstyle", 3, "Beta"));
  EXPECT_EQ(PropertyList(record(3)), sampleRoot().array("Style")->at(3)) << "and to its own it changes nothing";
}

}  // namespace
}  // namespace tarvo::test
