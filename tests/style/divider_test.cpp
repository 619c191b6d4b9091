// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/divider.h"

#include <gtest/gtest.h>

#include "platform/services/texts.h"

namespace tarvo {
namespace {

Dictionary named(PropertyList name) {
  Dictionary record;
  record.set("Name", std::move(name));
  return record;
}

TEST(Divider, isTheRecordNamedExactlyLikeTheDividersText) {
  Dictionary table;
  table.set("keyNameSeparator", "--- Line ---");
  Texts texts;
  EXPECT_TRUE(isDivider(named("keyNameSeparator"), texts));
  texts.overlay(table);
  EXPECT_TRUE(isDivider(named("--- Line ---"), texts));
  for (const char* other : {"keyNameSeparator", "--- line ---", "--- Line --- ", ""}) {
    EXPECT_FALSE(isDivider(named(other), texts)) << other;
  }
}

TEST(Divider, countsANameThatIsMissingOrNoTextAsEmpty) {
  Texts texts;
  EXPECT_FALSE(isDivider({}, texts));
  Dictionary table;
  table.set("keyNameSeparator", "");
  texts.overlay(table);
  EXPECT_TRUE(isDivider({}, texts));
  EXPECT_TRUE(isDivider(named(7), texts));
}

}  // namespace
}  // namespace tarvo
