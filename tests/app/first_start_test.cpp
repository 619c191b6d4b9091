// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

// The first start of a user: what is written, and how often, on the way from the product's styles to the user's.
namespace tarvo::test {
namespace {

constexpr const char* seedPath = "Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist";

// Loads the program and keeps what each write of the style file has left on the disk.
std::vector<Dictionary> writesOfTheStart(TestProgram& test, const Dictionary& seed) {
  test.root.write(seedPath, writePropertyList(seed));
  std::vector<Dictionary> writes;
  EXPECT_TRUE(test.program().construct());
  test.program().rooms().store.didWrite = [&] { writes.push_back(test.stylesOnDisk()); };
  EXPECT_TRUE(test.program().load());
  test.program().rooms().store.didWrite = nullptr;
  return writes;
}

const Dictionary& half(const Dictionary& root, std::size_t style, const char* direction) {
  return *root.array("Style")->at(style).dictionary()->dictionary(direction);
}

TEST(FirstStart, writesTheProductsStylesThenRepairsThenRemembersTheChoice) {
  Dictionary seed = sampleRoot();
  Dictionary& standard = *seed.array("Style")->at(0).dictionary();
  standard.dictionary("EJ")->set("TD", Array{"zz.TRet", "a.TRet"});
  standard.dictionary("JE")->remove("TOpt2");
  TestProgram test;
  const std::vector<Dictionary> writes = writesOfTheStart(test, seed);
  ASSERT_EQ(writes.size(), 3U);
  EXPECT_EQ(*half(writes[0], 0, "EJ").find("TD"), PropertyList(Array{"zz.TRet", "a.TRet"}));
  EXPECT_EQ(half(writes[0], 0, "JE").integerValue("TOpt2"), 2) << "filled in before the first write";
  EXPECT_EQ(*half(writes[1], 0, "EJ").find("TD"), PropertyList(Array{"a.TRet"}));
  EXPECT_EQ(writes[2], writes[1]) << "the seed remembers that choice already";
  EXPECT_EQ(*test.defaultsOnDisk().string("SMSelectedTag"), "MG");
  EXPECT_EQ(test.log, Log{}) << "the engine is not asked";
}

TEST(FirstStart, givesStylesWithoutAListAnEmptyOneForAMedicalDictionaryThatFitsNone) {
  TestProgram test({.language = "en", .strings = {"none"}});
  Dictionary texts;
  texts.set("TechETekado", "/m/te");
  test.product->texts().overlay(texts);
  test.root.write("m/te", "data");
  const std::vector<Dictionary> writes = writesOfTheStart(test, sampleRoot());
  ASSERT_EQ(writes.size(), 2U) << "one for the loading, one for the choice";
  EXPECT_EQ(*half(writes[0], 0, "EJ").find("TD"), PropertyList(Array{"a.TRet", "b.TRet", "c.TRet"}));
  for (const std::size_t style : {1U, 2U}) EXPECT_EQ(*half(writes[0], style, "EJ").find("TD"), PropertyList(Array{}));
  EXPECT_EQ(*test.defaultsOnDisk().find("Tekado1stE"), PropertyList(true));
  EXPECT_EQ(test.defaultsOnDisk().find("Tekado1stJ"), nullptr);
}

}  // namespace
}  // namespace tarvo::test
