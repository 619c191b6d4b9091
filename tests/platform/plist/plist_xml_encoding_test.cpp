// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "platform/plist/plist_reader.h"

namespace tarvo {
namespace {

std::string utf16(std::u16string_view text, bool littleEndian) {
  std::string bytes;
  for (const char16_t unit : text) {
    const char high = static_cast<char>(unit >> 8), low = static_cast<char>(unit & 0xFF);
    bytes += littleEndian ? low : high;
    bytes += littleEndian ? high : low;
  }
  return bytes;
}

TEST(XmlPropertyList, theHeadMayBeMissing) {
  EXPECT_EQ(readPropertyList("<plist><true/></plist>"), PropertyList(true));
  EXPECT_EQ(readPropertyList("<plist version='1.0'>\n<true/>\n</plist>"), PropertyList(true));
  EXPECT_EQ(readPropertyList("<?xml version='1.0'?><array><true/></array>"), PropertyList(Array{PropertyList(true)}));
  EXPECT_EQ(readPropertyList("<string>a</string>"), PropertyList("a"));
  EXPECT_EQ(readPropertyList("<key>a</key>"), std::nullopt);
}

TEST(XmlPropertyList, readsEveryEncodingThatAMarkOrTheDeclarationShows) {
  const std::u16string_view text = u"<?xml version=\"1.0\" encoding=\"UTF-16\"?><string>辞書\U0001F600</string>";
  const std::u16string_view liar = u"<?xml version=\"1.0\" encoding=\"UTF-8\"?><string>辞書\U0001F600</string>";
  const PropertyList expected("辞書\U0001F600");
  EXPECT_EQ(readPropertyList("\xFF\xFE" + utf16(text, true)), expected);
  EXPECT_EQ(readPropertyList("\xFE\xFF" + utf16(text, false)), expected);
  EXPECT_EQ(readPropertyList(utf16(text, true)), expected);
  EXPECT_EQ(readPropertyList(utf16(text, false)), expected);
  EXPECT_EQ(readPropertyList("\xFF\xFE" + utf16(liar, true)), expected);
  EXPECT_EQ(readPropertyList("\xEF\xBB\xBF<string>辞書\U0001F600</string>"), expected);
  EXPECT_EQ(readPropertyList("\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-16'?><string>辞書\U0001F600</string>"),
            expected);
  EXPECT_EQ(readPropertyList("<?xml version='1.0' encoding='ISO-8859-1'?><string>\xE9</string>"), PropertyList("é"));
  EXPECT_EQ(readPropertyList("<?xml version='1.0' encoding='x-unknown'?><string>a</string>"), std::nullopt);
  EXPECT_EQ(readPropertyList("\xFF\xFE" + utf16(u"<string>\xD800</string>", true)), std::nullopt);
  EXPECT_EQ(readPropertyList("\xFF\xFE" + utf16(text, true) + "\n"), std::nullopt);
}

std::string utf32(std::u32string_view text, bool littleEndian) {
  std::string bytes;
  for (const char32_t unit : text) {
    for (int i = 0; i < 4; ++i) bytes += static_cast<char>((unit >> (8 * (littleEndian ? i : 3 - i))) & 0xFF);
  }
  return bytes;
}

TEST(XmlPropertyList, readsUtf32BehindAMarkWhateverTheDeclarationSays) {
  const PropertyList expected("辞書\U0001F600");
  for (const bool littleEndian : {true, false}) {
    const auto read = [littleEndian](std::u32string_view text) { return readPropertyList(utf32(text, littleEndian)); };
    EXPECT_EQ(read(U"\uFEFF<string>辞書\U0001F600</string>"), expected);
    EXPECT_EQ(read(U"\uFEFF<?xml version=\"1.0\" encoding=\"UTF-8\"?><string>辞書\U0001F600</string>"), expected);
    EXPECT_EQ(read(U"\uFEFF<?xml version=\"1.0\" encoding=\"UTF-32\"?><string>辞書\U0001F600</string>"), expected);
    EXPECT_EQ(read(U"<string>a</string>"), std::nullopt) << "without a mark";
    EXPECT_EQ(read(U"\uFEFF"), std::nullopt);
    const std::string cut = utf32(U"\uFEFF<string>a</string>", littleEndian);
    EXPECT_EQ(readPropertyList(cut.substr(0, cut.size() - 1)), std::nullopt);
    for (const char32_t wrong : {char32_t{0xD800}, char32_t{0xDFFF}, char32_t{0x110000}, char32_t{0xFFFFFFFF}}) {
      EXPECT_EQ(read(std::u32string(U"\uFEFF<string>") + wrong + U"</string>"), std::nullopt);
    }
  }
}

TEST(XmlPropertyList, theDocumentTypeIsNeitherFetchedNorAbleToDeclareText) {
  const auto read = [](const std::string& type, const std::string& text) {
    return readPropertyList("<?xml version='1.0'?>" + type + "<plist><string>" + text + "</string></plist>");
  };
  const std::string external = "SYSTEM \"/nowhere/list.dtd\"";
  EXPECT_EQ(read("<!DOCTYPE plist " + external + ">", "a"), PropertyList("a"));
  EXPECT_EQ(read("<!DOCTYPE plist " + external + ">", "a&b;"), std::nullopt);
  EXPECT_EQ(read("<!DOCTYPE plist [<!ENTITY b \"c\">]>", "a"), std::nullopt);
  EXPECT_EQ(read("<!DOCTYPE plist [<!ENTITY b SYSTEM \"/etc/hostname\">]>", "&b;"), std::nullopt);
  EXPECT_EQ(read("<!DOCTYPE plist [<!ENTITY % b \"c\"> %b;]>", "a"), std::nullopt);
  EXPECT_EQ(read("<!DOCTYPE plist [%b; <!ENTITY c \"d\">]>", "a&c;"), std::nullopt);
  EXPECT_EQ(read("<!DOCTYPE plist [<!ELEMENT plist ANY>]>", "a"), PropertyList("a"));
}

TEST(XmlPropertyList, entitiesThatMultiplyGiveNothing) {
  std::string type = "<!DOCTYPE plist [<!ENTITY e0 \"haha\">";
  for (int i = 1; i < 30; ++i) {
    const std::string previous = "&e" + std::to_string(i - 1) + ";";
    type += "<!ENTITY e" + std::to_string(i) + " \"" + previous + previous + "\">";
  }
  EXPECT_EQ(readPropertyList(type + "]><plist><string>&e29;</string></plist>"), std::nullopt);
}

}  // namespace
}  // namespace tarvo
