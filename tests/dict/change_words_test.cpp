// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/change_words.h"

#include <gtest/gtest.h>

#include "platform/services/texts.h"

namespace tarvo {
namespace {

using Kind = StyleChange::Kind;
using Words = std::vector<std::string>;
constexpr Direction je = Direction::japaneseToEnglish;

Texts textsForPeople() {
  Dictionary table;
  table.set("keyNameSeparator", "-----");
  table.set("Label.TOpt1", "Kind of text");
  table.set("Change.added", "added");
  Texts texts;
  texts.overlay(table);
  return texts;
}
const Texts texts = textsForPeople();

StyleChange option(const std::string& style) {
  return {Kind::value, style, je, "TOpt1", PropertyList(0), PropertyList(1)};
}

TEST(ChangeWords, optionsOfTheLineBetweenStylesAreNothingToReadAbout) {
  EXPECT_EQ(changesInWords({option("-----")}, texts), Words());
  EXPECT_EQ(changesInWords({option("A"), option("-----"), option("B")}, texts),
            (Words{"A: Kind of text 0 → 1", "B: Kind of text 0 → 1"}));
}

TEST(ChangeWords, theLineItselfIs) {
  EXPECT_EQ(changesInWords({{Kind::added, "-----", {}, "", {}, {}}}, texts), Words{"-----: added"});
}

}  // namespace
}  // namespace tarvo
