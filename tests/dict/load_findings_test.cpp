// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/load_findings.h"

#include <gtest/gtest.h>

#include "tests/dict/dictionary_world.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {
namespace {

Dictionary rootWith(const std::vector<Array>& lists) {
  Array styles;
  for (const Array& list : lists) {
    Dictionary ej, style;
    ej.set("TD", list);
    style.set("EJ", ej);
    styles.emplace_back(style);
  }
  styles.emplace_back("no record");
  Dictionary root;
  root.set("Style", styles);
  return root;
}

class LoadFindingsTest : public testing::Test {
 protected:
  LoadFindingsTest() {
    world_.put({"a.TRet", "b.TRet"});
    world_.setText("EJTab", "EJ");
    world_.setText("Loaded.gone", "%1 lost %2");
    world_.setText("Loaded.defaults", "filled in: %@");
  }
  Names gone(const std::vector<Array>& lists) {
    return goneDictionaries(world_.servicesOver(world_.files), rootWith(lists))[0];
  }
  DictionaryWorld world_;
};

TEST_F(LoadFindingsTest, areNoneWhereEveryDictionaryIsThere) {
  EXPECT_EQ(gone({{"a.TRet", "B.tret"}, {}}), Names{});
  EXPECT_EQ(goneDictionaries(world_.servicesOver(world_.files), Dictionary()), NamesByDirection{});
  EXPECT_TRUE(goneSentences({}, world_.texts).empty());
}

TEST_F(LoadFindingsTest, nameEachDictionaryOnceOverAllStyles) {
  EXPECT_EQ(gone({{"a.TRet", "y.TRet", "x.TRet"}, {"X.tret", "b.TRet"}}), (Names{"x.TRet", "y.TRet"}));
}

TEST_F(LoadFindingsTest, leaveAListOutThatHasNoneOfItsFiles) { EXPECT_EQ(gone({{"x.TRet", "y.TRet"}}), Names{}); }

TEST_F(LoadFindingsTest, sayNothingOfAFolderThatCannotBeRead) {
  MemoryFiles files;
  files.put(world_.path("a.TRet"), "");
  files.refuse(MemoryFiles::Operation::list);
  EXPECT_EQ(goneDictionaries(world_.servicesOver(files), rootWith({{"a.TRet", "x.TRet"}})), NamesByDirection{});
}

TEST_F(LoadFindingsTest, areSaidInOneSentenceADirection) {
  EXPECT_EQ(goneSentences({Names{"x.TRet", "y.TRet"}, Names{}}, world_.texts),
            std::vector<std::string>{"EJ lost x.TRet, y.TRet"});
}

TEST_F(LoadFindingsTest, callOptionsByTheirNames) {
  world_.setText("Label.TOpt1", "Kind of text");
  EXPECT_EQ(defaultsSentence({"TOpt1", "TOpt4"}, world_.texts), "filled in: Kind of text, TOpt4");
}

}  // namespace
}  // namespace tarvo::test
