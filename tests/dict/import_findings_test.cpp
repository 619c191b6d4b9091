// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/import_findings.h"

#include <gtest/gtest.h>

#include "tests/dict/dictionary_world.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {
namespace {

Dictionary styleWith(const Array& english, const Array& japanese = {}) {
  Dictionary ej, je, style;
  ej.set("TD", english);
  je.set("TD", japanese);
  style.set("EJ", ej);
  style.set("JE", je);
  return style;
}

class ImportFindingsTest : public testing::Test {
 protected:
  ImportFindingsTest() { world_.put({"a.TRet", "b.TRet"}); }
  static Dictionary configuration(const std::string& folder) {
    Dictionary paths;
    paths.set("tarvoPathTechnicalDicEngFolderURL", folder);
    paths.set("tarvoPathTechnicalDicJpnFolderURL", folder);
    return paths;
  }
  ImportFindings find(const Dictionary& imported, const Dictionary& stored) {
    DictController::Services services{world_.files, world_.texts, world_.bundle, paths_, world_.locations};
    return importFindings(services, imported, stored);
  }
  DictionaryWorld world_;
  ProductPaths paths_{world_.locations, configuration(world_.dictionaryFolder().text())};
};

TEST_F(ImportFindingsTest, areNoneWhereEverythingIsHere) {
  const Dictionary style = styleWith({"a.TRet", "B.tret"}, {"b.TRet"});
  EXPECT_TRUE(importSentences(find(style, style), world_.texts).empty());
  EXPECT_TRUE(importSentences(find(Dictionary(), Dictionary()), world_.texts).empty());
}

TEST_F(ImportFindingsTest, nameEachDictionaryOnce) {
  const Dictionary style = styleWith({"x.TRet", "a.TRet", "A.TRet", "X.tret", "a.tret"}, {"y.TRet"});
  const ImportFindings kept = find(style, style);
  EXPECT_EQ(kept.lists[0].missing, Names{"x.TRet"});
  EXPECT_EQ(kept.lists[0].doubled, (Names{"A.TRet", "X.tret"}));
  EXPECT_EQ(kept.lists[1].missing, Names{"y.TRet"});
  const ImportFindings repaired = find(style, styleWith({"a.TRet"}, {"y.TRet"}));
  EXPECT_EQ(repaired.lists[0].dropped, Names{"x.TRet"});
  EXPECT_TRUE(repaired.lists[0].missing.empty());
  EXPECT_EQ(repaired.lists[1].missing, Names{"y.TRet"});
}

TEST_F(ImportFindingsTest, tellTextsThatAStyleFileCannotHold) {
  const Dictionary style = styleWith({"a\x01.TRet"});
  EXPECT_EQ(find(style, style).unkeepable, (std::vector<PlistFinding>{{"EJ/TD/0", "a\x01.TRet"}}));
}

TEST_F(ImportFindingsTest, sayNothingIsMissingFromAFolderThatCannotBeListed) {
  MemoryFiles files;
  files.put(world_.path("a.TRet"), "");
  files.refuse(MemoryFiles::Operation::list);
  DictController::Services services{files, world_.texts, world_.bundle, paths_, world_.locations};
  const Dictionary style = styleWith({"x.TRet", "x.TRet"});
  const ImportFindings found = importFindings(services, style, style);
  EXPECT_TRUE(found.lists[0].missing.empty());
  EXPECT_EQ(found.lists[0].doubled, Names{"x.TRet"});
}

TEST_F(ImportFindingsTest, areSaidInOneSentenceForEachKindAndDirection) {
  world_.setText("EJTab", "EJ");
  world_.setText("Imported.missing", "%1 lacks %2");
  world_.setText("Imported.doubled", "%1 doubles %2");
  world_.setText("Imported.unkeepable", "bad: %1");
  world_.setText("Imported.andMore", "%1 and %2 more");
  Array names{"a.TRet", "a.TRet", "x\x02.TRet"};
  for (int i = 0; i < 9; ++i) names.emplace_back(std::to_string(i) + ".TRet");
  const Dictionary style = styleWith(names);
  EXPECT_EQ(importSentences(find(style, style), world_.texts),
            (std::vector<std::string>{"EJ lacks x\x02.TRet, 0.TRet, 1.TRet, 2.TRet, 3.TRet, 4.TRet, 5.TRet, 6.TRet "
                                      "and 2 more",
                                      "EJ doubles a.TRet", "bad: EJ/TD/2"}));
}

}  // namespace
}  // namespace tarvo::test
