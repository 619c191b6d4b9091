// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "style/style_keys.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

// The order of what a choice of a style does, as a view would notice it.
namespace tarvo::test {
namespace {

class StyleChoice : public testing::Test {
 protected:
  StyleChoice() {
    test_.writeStyles(sampleRoot());
    test_.program().start();
    Interface& interface = test_.interface();
    interface.options.indexPopups[0].view = [this](Control::Change) {
      const auto loaded = test_.program().rooms().lists.ejTDController().selectedDictionary();
      test_.log.emplace_back(loaded ? "options over loaded lists" : "options over cleared lists");
    };
    const auto watch = [this](Control& control, const char* name, Control::Change change) {
      control.view = [this, name, change](Control::Change told) {
        if (told == change) test_.log.emplace_back(name);
      };
    };
    watch(interface.options.detailPopups[0], "details", Control::Change::value);
    watch(interface.lists.ejTDTable, "english list", Control::Change::reload);
    watch(interface.lists.jeTDTable, "japanese list", Control::Change::reload);
    watch(interface.naming.StyleNameEditButton, "rename button", Control::Change::look);
    watch(interface.lists.ejLoadDicButton, "load button", Control::Change::look);
    test_.program().rooms().store.didWrite = [this] { test_.log.emplace_back("write"); };
    test_.log.clear();
  }
  ~StyleChoice() override { test_.program().rooms().store.didWrite = {}; }
  TestProgram test_;
};

TEST_F(StyleChoice, clearsTheListsShowsTheStyleStoresTheChoiceAndOffersRenamingLast) {
  test_.interface().style.stylePopup.userChoose(3);
  EXPECT_EQ(test_.log, (Log{"options over cleared lists", "details", "english list", "japanese list", "english list",
                            "japanese list", "write", "unreachable", "rename button"}));
  EXPECT_EQ(test_.stylesOnDisk().dictionary("Selection")->integerValue("MG"), 3);
}

TEST_F(StyleChoice, writesARepairedListBeforeTheChoice) {
  for (const char* gone : {"EJ/b.TRet", "JE/j2.TRet"}) {
    ASSERT_EQ(0, std::remove((test_.root / (std::string(TestProgram::technical) + gone)).c_str()));
  }
  test_.log.clear();
  test_.interface().style.stylePopup.userChoose(0);
  EXPECT_EQ(test_.log, (Log{"options over cleared lists", "details", "write", "unreachable", "english list", "write",
                            "unreachable", "japanese list", "english list", "japanese list", "write", "unreachable"}));
}

TEST_F(StyleChoice, ofALongListTurnsLoadingOffAfterTheWrite) {
  Dictionary record = *test_.program().rooms().store.getStyleAtIndex(1);
  Array names;
  for (int i = 0; i < 8; ++i) {
    const std::string name = "d" + std::to_string(i) + ".TRet";
    test_.root.write(std::string(TestProgram::technical) + "EJ/" + name, "");
    names.emplace_back(name);
  }
  record.dictionary("EJ")->set("TD", names);
  test_.program().rooms().store.setStyle(1, record);
  test_.program().rooms().lists.ejTDController().updateAllDictionary();
  test_.log.clear();
  test_.interface().style.stylePopup.userChoose(1);
  EXPECT_EQ(test_.log, (Log{"options over cleared lists", "details", "english list", "japanese list", "english list",
                            "japanese list", "write", "unreachable", "load button", "rename button"}));
}

TEST(StyleNames, theStandardNameIsTheTextOfTheKeyThatOtherToolsSpell) {
  TestProgram tables;
  tables.root.write("texts.plist", "<plist><dict><key>NormalStyle</key><string>x</string></dict></plist>");
  TestProgram test({.strings = {"none", tables.root / "texts.plist"}});
  EXPECT_EQ(test.program().rooms().naming.styleNamePublic(), "NomalStyle");
}

}  // namespace
}  // namespace tarvo::test
