// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_store.h"

#include <gtest/gtest.h>

#include "tests/style/style_store_fixture.h"
#include "tests/support/sample_styles.h"

namespace tarvo::test {
namespace {

TEST_F(StyleStoreTest, readsTheRootKeyForKeyAndTypeForType) { EXPECT_EQ(storeOf(sampleRoot()).root(), sampleRoot()); }

TEST_F(StyleStoreTest, hasNoStylesInARootWithoutAnyOrWithAnEmptyArray) {
  EXPECT_EQ(storeOf({}).getAllStyle(), nullptr);
  Dictionary empty;
  empty.set("Style", Array{});
  EXPECT_EQ(storeOf(empty).getAllStyle(), nullptr);
  EXPECT_EQ(storeOf(empty).getStyleAtIndex(0), std::nullopt);
  EXPECT_EQ(storeOf(sampleRoot()).getAllStyle()->size(), 4U);
}

TEST_F(StyleStoreTest, givesNoRecordOutsideTheArray) {
  const StyleStore store = storeOf(sampleRoot());
  EXPECT_EQ(*store.getStyleAtIndex(3)->string("Name"), "Beta");
  for (const int index : {-1, 4, -2147483647 - 1, 2147483647}) {
    EXPECT_EQ(store.getStyleAtIndex(index), std::nullopt) << index;
  }
}

TEST_F(StyleStoreTest, readsAWrongKindAsAbsentAndLeavesItInTheFile) {
  Dictionary root = sampleRoot();
  root.array("Style")->at(1) = "no record";
  root.set("Selection", "no dictionary");
  StyleStore store = storeOf(root);
  EXPECT_EQ(store.getStyleAtIndex(1), std::nullopt);
  EXPECT_EQ(store.getSelection(), nullptr);
  EXPECT_EQ(store.selectedStyle(), 0);
  store.setSelection(3);
  EXPECT_EQ(onDisk(), root);
}

TEST_F(StyleStoreTest, keepsTheRecordOfTheMomentItWasPutBack) {
  StyleStore store = storeOf(sampleRoot());
  Dictionary record = *store.getStyleAtIndex(1);
  record.dictionary("EJ")->set("Opt1", 2);
  store.setStyle(1, record);
  record.dictionary("EJ")->set("Opt1", 0);
  EXPECT_EQ(store.getStyleAtIndex(1)->dictionary("EJ")->integerValue("Opt1"), 2);
  store.setSelection(1);
  EXPECT_EQ(onDisk().array("Style")->at(1).dictionary()->dictionary("EJ")->integerValue("Opt1"), 2);
}

TEST_F(StyleStoreTest, isUntouchedByARecordThatWasNotPutBack) {
  StyleStore store = storeOf(sampleRoot());
  Dictionary record = *store.getStyleAtIndex(1);
  record.dictionary("JE")->set("TOpt1", 4);
  store.setSelection(0);
  EXPECT_EQ(onDisk(), sampleRoot());
}

TEST_F(StyleStoreTest, changesAndWritesNothingForAnIndexOutsideTheArray) {
  StyleStore store = storeOf(sampleRoot());
  folder_.write("styles.plist", "untouched");
  store.setStyle(4, {});
  store.setStyle(-1, {});
  EXPECT_EQ(store.root(), sampleRoot());
  EXPECT_EQ(folder_.read("styles.plist"), "untouched");
}

TEST_F(StyleStoreTest, remembersTheStyleOfTheCurrentToolAndKeepsTheOthers) {
  StyleStore store = storeOf(sampleRoot());
  store.setSelection(3);
  EXPECT_EQ(onDisk().dictionary("Selection")->integerValue("MG"), 3);
  EXPECT_EQ(onDisk().dictionary("Selection")->integerValue("QB"), 3);
  EXPECT_EQ(onDisk().dictionary("Selection")->size(), 2U);
}

TEST_F(StyleStoreTest, storesNoSelectionWhereThereIsNoneButWritesAllTheSame) {
  Dictionary root = sampleRoot();
  root.remove("Selection");
  StyleStore store = storeOf(root);
  folder_.write("styles.plist", "old");
  store.setSelection(3);
  EXPECT_EQ(onDisk(), root);
  EXPECT_EQ(store.selectedStyle(), 0);
}

TEST_F(StyleStoreTest, fillsMissingJapaneseOptionsInMemoryOnly) {
  Dictionary root = sampleRoot();
  root.array("Style")->at(1).dictionary()->set("JE", Dictionary());
  StyleStore store = storeOf(root);
  const std::string before = folder_.read("styles.plist");
  store.fillInMissingOptions();
  const Dictionary filled = *store.getStyleAtIndex(1)->dictionary("JE");
  EXPECT_EQ(filled.size(), 5U);
  EXPECT_EQ(*filled.find("TOpt1"), PropertyList(0));
  EXPECT_EQ(*filled.find("TOpt2"), PropertyList(2));
  EXPECT_EQ(*filled.find("TOpt3"), PropertyList(3));
  EXPECT_EQ(*filled.find("TOpt4"), PropertyList(true));
  EXPECT_EQ(*filled.find("TOpt5"), PropertyList(0));
  EXPECT_EQ(folder_.read("styles.plist"), before);
}

TEST_F(StyleStoreTest, neitherChecksNorClampsPresentOptions) {
  Dictionary root = sampleRoot();
  Dictionary* je = root.array("Style")->at(1).dictionary()->dictionary("JE");
  je->set("TOpt2", 0);
  je->set("TOpt3", 9);
  je->set("TOpt5", "x");
  StyleStore store = storeOf(root);
  store.fillInMissingOptions();
  store.writeTarvoStylePlist();
  EXPECT_EQ(onDisk(), root);
}

TEST_F(StyleStoreTest, givesEnglishOptionsAndTheDividerNoDefaults) {
  Dictionary root = sampleRoot();
  root.array("Style")->at(1).dictionary()->set("EJ", Dictionary());
  StyleStore store = storeOf(root);
  store.fillInMissingOptions();
  EXPECT_TRUE(store.getStyleAtIndex(1)->dictionary("EJ")->empty());
  EXPECT_EQ(store.getStyleAtIndex(2)->size(), 1U);
}

}  // namespace
}  // namespace tarvo::test
