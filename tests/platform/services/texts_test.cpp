// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/texts.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/bundle.h"
#include "platform/services/locations.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

Dictionary table(std::initializer_list<std::pair<const char*, PropertyList>> rows) {
  Dictionary out;
  for (const auto& [key, value] : rows) out.set(key, value);
  return out;
}

class TextsTest : public testing::Test {
 protected:
  test::TemporaryFolder folder;
  Locations locations{"/", folder.path()};
  PosixFiles files{locations};
  Texts texts;
};

TEST_F(TextsTest, aLaterTableWinsKeyByKey) {
  texts.overlay(table({{"a", "1"}, {"b", "2"}}));
  texts.overlay(table({{"b", "3"}, {"c", ""}}));
  EXPECT_EQ(texts.localized("a"), "1");
  EXPECT_EQ(texts.localized("b"), "3");
  EXPECT_EQ(texts.localized("c"), "") << "an empty text is a text";
}

TEST_F(TextsTest, aKeyWithoutATextIsItsTextOrAnEmptyOne) {
  EXPECT_EQ(texts.localized("key"), "key");
  EXPECT_EQ(texts.localizedOrEmpty("key"), "");
  EXPECT_EQ(texts.find("key"), nullptr);
  texts.overlay(table({{"key", "text"}, {"number", 5}}));
  EXPECT_EQ(texts.localizedOrEmpty("key"), "text");
  EXPECT_EQ(*texts.find("key"), "text");
  EXPECT_EQ(texts.localized("number"), "number");
  texts.clear();
  EXPECT_EQ(texts.localized("key"), "key");
}

TEST_F(TextsTest, theShippedTableIsThatOfTheFirstLanguageThatHasOne) {
  folder.write("en.lproj/Localizable.strings", writePropertyList(table({{"a", "english"}})));
  folder.write("ja.lproj/Localizable.strings", writePropertyList(table({{"a", "日本語"}, {"b", "ja only"}})));
  folder.makeFolder("fr.lproj");
  const auto shipped = [&](std::vector<std::string> languages) {
    Texts laid;
    overlayShippedTable(laid, Bundle(files, DiskPath(folder.path()), std::move(languages)), files);
    return laid.localized("a") + "," + laid.localized("b");
  };
  EXPECT_EQ(shipped({"ja", "en"}), "日本語,ja only");
  EXPECT_EQ(shipped({"fr", "en", "ja"}), "english,b");
  EXPECT_EQ(shipped({"fr"}), "a,b");
}

TEST_F(TextsTest, aTableFileMustBeADictionary) {
  folder.write("good", writePropertyList(table({{"a", "1"}})));
  folder.write("array", writePropertyList(Array{PropertyList("a")}));
  folder.write("broken", "<plist>");
  EXPECT_TRUE(overlayTableFile(texts, files, folder.at("good")));
  for (const char* name : {"array", "broken", "missing"}) EXPECT_FALSE(overlayTableFile(texts, files, folder.at(name)));
  EXPECT_EQ(texts.localized("a"), "1");
}

TEST(Texts, aValueTakesTheFirstPlaceForOne) {
  EXPECT_EQ(filledIn("error %d, again %@", "7"), "error 7, again %@");
  EXPECT_EQ(filledIn("“%@”を", "%d"), "“%d”を");
  EXPECT_EQ(filledIn("%ld items", "3"), "3 items");
  EXPECT_EQ(filledIn("100 % sure", "x"), "100 % sure");
}

}  // namespace
}  // namespace tarvo
