// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_changes.h"

#include <gtest/gtest.h>

#include "style/style_keys.h"

namespace tarvo {
namespace {

using Kind = StyleChange::Kind;
constexpr Direction ej = Direction::englishToJapanese;

PropertyList style(const std::string& name, Array list = {}, int option = 0) {
  Dictionary half, record;
  half.set("Opt1", option);
  half.set(keyNameTD, std::move(list));
  record.set(keyNameName, name);
  record.set(keyNameEJ, std::move(half));
  return record;
}

TEST(StyleChanges, sameSetsDifferInNothing) {
  const Array set{style("A"), style("B")};
  EXPECT_TRUE(styleChanges(set, set).empty());
}

TEST(StyleChanges, anOptionIsToldWithItsValues) {
  EXPECT_EQ(recordChanges(style("A"), style("A", {}, 2)),
            (std::vector<StyleChange>{{Kind::value, "A", ej, "Opt1", PropertyList(0), PropertyList(2)}}));
}

TEST(StyleChanges, dictionariesAreToldByTheirNames) {
  EXPECT_EQ(recordChanges(style("A", {"Physics", "Law", "Art"}), style("A", {"Art", "Law", "Music"})),
            (std::vector<StyleChange>{{Kind::dictionaryRemoved, "A", ej, "Physics", {}, {}},
                                      {Kind::dictionaryAdded, "A", ej, "Music", {}, {}},
                                      {Kind::dictionariesMoved, "A", ej, "", {}, {}}}));
}

TEST(StyleChanges, aRenamedStyleKeepsItsPlace) {
  EXPECT_EQ(styleChanges({style("A"), style("B")}, {style("A"), style("C")}),
            (std::vector<StyleChange>{{Kind::renamed, "C", {}, "Name", PropertyList("B"), PropertyList("C")}}));
}

TEST(StyleChanges, addedRemovedAndMovedStylesAreTold) {
  EXPECT_EQ(styleChanges({style("A"), style("B"), style("C")}, {style("C"), style("A"), style("D"), style("E")}),
            (std::vector<StyleChange>{{Kind::added, "D", {}, "", {}, {}},
                                      {Kind::added, "E", {}, "", {}, {}},
                                      {Kind::removed, "B", {}, "", {}, {}},
                                      {Kind::moved, "", {}, "", {}, {}}}));
}

TEST(StyleChanges, aMissingHalfIsToldByWhatItHeld) {
  Dictionary none;
  none.set(keyNameName, "A");
  const auto changes = recordChanges(style("A", {"Physics"}), none);
  ASSERT_EQ(changes.size(), 2U);
  EXPECT_EQ(changes[0].key, "Opt1");
  EXPECT_EQ(changes[1].kind, Kind::dictionaryRemoved);
}

TEST(StyleChanges, theNumberOfAStyleIsNobodysChange) {
  Dictionary numbered = *style("A").dictionary();
  numbered.set(keyNameID, 3);
  EXPECT_TRUE(recordChanges(style("A"), numbered).empty());
}

}  // namespace
}  // namespace tarvo
