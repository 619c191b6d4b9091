// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/option_editing.h"

#include <gtest/gtest.h>

#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "style/option_table.h"
#include "style/style_store.h"
#include "tests/support/fake_shell.h"
#include "tests/support/sample_styles.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

class OptionEditingTest : public testing::Test {
 protected:
  OptionEditingTest()
      : locations_("/", folder_.path()),
        files_(locations_),
        defaults_(files_, folder_.at("defaults.plist")),
        store_(files_, engine_, defaults_, folder_.at("styles.plist"), folder_.at("seed.plist")) {
    for (std::size_t i = 0; i < indexOptions().size(); ++i) {
      outlets_.indexPopups[i].setTag(indexOptions()[i].popupTag);
      outlets_.indexPopups[i].setItems(itemsFor(indexOptions()[i], Texts()));
    }
    for (std::size_t i = 0; i < detailOptions().size(); ++i) {
      outlets_.detailPopups[i].setItems(itemsFor(detailOptions()[i], Texts()));
    }
    start(sampleRoot());
  }
  void start(const Dictionary& root) {
    Array styles = *root.array("Style");
    store_.replaceStyles(std::move(styles));
    store_.setCurrentID("MG");
    store_.didWrite = [this] { ++writes_; };
    writes_ = 0;
  }
  Dictionary record(int index) const { return *store_.getStyleAtIndex(index); }
  PopUpButton& popup(std::string_view outlet) {
    for (Control* control : outlets_.controls()) {
      if (control->name() == "style." + std::string(outlet)) return static_cast<PopUpButton&>(*control);
    }
    throw std::out_of_range(std::string(outlet));
  }
  int shown(std::string_view outlet) { return popup(outlet).indexOfSelectedItem(); }

  TemporaryFolder folder_;
  Log log_;
  Locations locations_;
  PosixFiles files_;
  FakeEngine engine_{log_};
  UserDefaults defaults_;
  StyleStore store_;
  OptionOutlets outlets_;
  Texts texts_;
  OptionEditing editing_{store_, outlets_, texts_};
  int writes_ = 0;
};

TEST_F(OptionEditingTest, showsTheIndexesThatTheRecordHolds) {
  editing_.showOptions(record(3));
  EXPECT_EQ(shown("ejOption1Popup"), 2);
  EXPECT_EQ(shown("ejOption2Popup"), 2);
  EXPECT_EQ(shown("ejOption3Popup"), 1);
  EXPECT_EQ(shown("jeOption1Popup"), 4);
  EXPECT_EQ(shown("jeOption2Popup"), 4);
  EXPECT_EQ(shown("jeOption3Popup"), 0);
  EXPECT_EQ(shown("jeOption5Popup"), 0);
  EXPECT_EQ(writes_, 0);
}

TEST_F(OptionEditingTest, showsTheFirstItemForAMissingOptionAndNoneForOneOutOfRange) {
  Dictionary style = record(1);
  style.dictionary("EJ")->remove("Opt2");
  style.dictionary("EJ")->set("Opt3", 7);
  style.remove("JE");
  editing_.showOptions(style);
  EXPECT_EQ(shown("ejOption2Popup"), 0);
  EXPECT_EQ(shown("ejOption3Popup"), -1);
  EXPECT_EQ(shown("jeOption1Popup"), 0);
}

TEST_F(OptionEditingTest, readsBooleansAndNumericTextsAsIndexes) {
  Dictionary style = record(1);
  style.dictionary("EJ")->set("Opt1", true);
  style.dictionary("EJ")->set("Opt2", " 2nd");
  editing_.showOptions(style);
  EXPECT_EQ(shown("ejOption1Popup"), 1);
  EXPECT_EQ(shown("ejOption2Popup"), 2);
}

TEST_F(OptionEditingTest, showsDetailsThatTheStyleHoldsAndNoItemForTheRest) {
  editing_.showDetailedOptions(record(3));
  int unset = 0;
  for (const PopUpButton& detail : outlets_.detailPopups) unset += detail.indexOfSelectedItem() == -1 ? 1 : 0;
  EXPECT_EQ(shown("parsSahenPopup"), 1);
  EXPECT_EQ(unset, 35);
  Dictionary style = record(3);
  style.dictionary("JE")->set("PARS_SAHEN", "future");
  style.dictionary("JE")->set("KATA1", 1);
  editing_.showDetailedOptions(style);
  EXPECT_EQ(shown("parsSahenPopup"), -1);
  EXPECT_EQ(shown("kata1Popup"), -1);
  style.remove("JE");
  editing_.showDetailedOptions(style);
  EXPECT_EQ(shown("parsSahenPopup"), -1);
}

struct IndexCase {
  int tag;
  const char *half, *key;
};
class EachIndexOption : public OptionEditingTest, public testing::WithParamInterface<IndexCase> {};

TEST_P(EachIndexOption, storesTheShownIndexUnderItsKeyAndNothingElse) {
  const IndexCase& given = GetParam();
  for (PopUpButton& option : outlets_.indexPopups) option.selectItemAtIndex(1);
  Dictionary expected = record(0);
  expected.dictionary(given.half)->set(given.key, 1);
  editing_.optionPopupChange(given.tag);
  EXPECT_EQ(record(0), expected);
  EXPECT_EQ(writes_, 1);
}

INSTANTIATE_TEST_SUITE_P(All, EachIndexOption,
                         testing::Values(IndexCase{0, "EJ", "Opt1"}, IndexCase{1, "EJ", "Opt2"},
                                         IndexCase{2, "EJ", "Opt3"}, IndexCase{3, "JE", "TOpt1"},
                                         IndexCase{4, "JE", "TOpt2"}, IndexCase{5, "JE", "TOpt3"},
                                         IndexCase{7, "JE", "TOpt5"}));

TEST_F(OptionEditingTest, writesTheRecordBackUnchangedForATagWithoutAnOption) {
  for (const int tag : {6, -1, 8}) editing_.optionPopupChange(tag);
  EXPECT_EQ(*store_.getAllStyle(), *sampleRoot().array("Style"));
  EXPECT_EQ(writes_, 3);
}

TEST_F(OptionEditingTest, editsTheStyleThatTheToolRemembersNotTheFirstOne) {
  folder_.write("styles.plist", "");
  Dictionary root = sampleRoot();
  ASSERT_TRUE(PlistFile(files_, folder_.at("styles.plist")).write(root));
  ASSERT_TRUE(store_.readUserStyles());
  store_.setCurrentID("QB");
  popup("ejOption1Popup").selectItemAtIndex(0);
  editing_.optionPopupChange(0);
  EXPECT_EQ(record(3).dictionary("EJ")->integerValue("Opt1"), 0);
  EXPECT_EQ(record(0), *root.array("Style")->at(0).dictionary());
}

TEST_F(OptionEditingTest, createsNoHalfThatTheRecordLacksButWritesItBack) {
  Dictionary root = sampleRoot();
  root.array("Style")->at(0).dictionary()->remove("JE");
  start(root);
  editing_.selectJeOptionPopup(popup("kata1Popup"));
  editing_.optionPopupChange(3);
  EXPECT_FALSE(record(0).contains("JE"));
  EXPECT_EQ(writes_, 2);
}

TEST_F(OptionEditingTest, writesTheDividerBackUnchangedThoughItHasBothHalves) {
  Dictionary root = sampleRoot();
  Dictionary& divider = *root.array("Style")->at(0).dictionary();
  divider.set("Name", "keyNameSeparator");
  start(root);
  editing_.optionPopupChange(0);
  editing_.selectJeOptionPopup(popup("kata1Popup"));
  EXPECT_EQ(record(0), divider);
  EXPECT_EQ(writes_, 2);
}

TEST_F(OptionEditingTest, storesTheTextOfTheChosenItemsTag) {
  struct Choice {
    const char *outlet, *key;
    int tag;
    const char* value;
  };
  for (const Choice& choice : {Choice{"kata1Popup", "KATA1", 2, "1"}, Choice{"kata3Popup", "KATA3", 2, "0"},
                               Choice{"gene_nadonoPopup", "GENE_NADONO", 5, "instance"},
                               Choice{"gene_nadonoPopup", "GENE_NADONO", 7, "such_as"},
                               Choice{"tran_no_subjPopup", "TRAN_NO_SUBJ", 3, "imperative"}}) {
    popup(choice.outlet).setItems({{"an item", choice.tag}});
    editing_.selectJeOptionPopup(popup(choice.outlet));
    EXPECT_EQ(*record(0).dictionary("JE")->string(choice.key), choice.value) << choice.outlet << " " << choice.tag;
  }
  EXPECT_EQ(writes_, 5);
}

TEST_F(OptionEditingTest, changesNothingForASenderThatIsNoDetailedOption) {
  editing_.selectJeOptionPopup(popup("ejOption1Popup"));
  EXPECT_EQ(writes_, 0);
}

TEST_F(OptionEditingTest, keepsKeysThatNoControlEdits) {
  Dictionary root = sampleRoot();
  root.array("Style")->at(0) = root.array("Style")->at(3);
  start(root);
  for (PopUpButton& detail : outlets_.detailPopups) editing_.selectJeOptionPopup(detail);
  for (const IndexOption& option : indexOptions()) editing_.optionPopupChange(option.popupTag);
  const Dictionary* je = record(0).dictionary("JE");
  EXPECT_EQ(*record(0).dictionary("JE")->string("FLEX_MODE"), "x");
  EXPECT_EQ(*record(0).dictionary("JE")->find("TOpt4"), PropertyList(true));
  EXPECT_EQ(record(0).dictionary("EJ")->array("UD")->size(), 1U);
  EXPECT_TRUE(record(0).contains("Future"));
  EXPECT_NE(je, nullptr);
}

TEST_F(OptionEditingTest, showsThePageThatTheEditPopUpOfTheDirectionNames) {
  for (TabView* tab : {&outlets_.ejEditTab, &outlets_.jeEditTab}) tab->setPages({{"Dict", ""}, {"Option", ""}});
  outlets_.ejEditPopup.setItems({{"d", 0}, {"o", 1}, {"x", 2}});
  outlets_.jeEditPopup.setItems({{"d", 0}, {"o", 1}});
  for (const int item : {1, 0, 2}) {
    outlets_.ejEditPopup.selectItemAtIndex(item);
    editing_.selectEjEditPopup();
    EXPECT_EQ(outlets_.ejEditTab.selectedPage(), item == 0 ? 0 : 1);
    EXPECT_EQ(outlets_.jeEditTab.selectedPage(), 0);
  }
  outlets_.jeEditPopup.selectItemAtIndex(1);
  editing_.selectJeEditPopup();
  EXPECT_EQ(outlets_.jeEditTab.selectedPage(), 1);
  outlets_.jeEditPopup.selectItemAtIndex(-1);
  editing_.selectJeEditPopup();
  EXPECT_EQ(outlets_.jeEditTab.selectedPage(), 0);
  EXPECT_EQ(writes_, 0);
}

}  // namespace
}  // namespace tarvo::test
