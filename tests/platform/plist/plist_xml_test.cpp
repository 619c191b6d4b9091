// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"

namespace tarvo {
namespace {

std::optional<PropertyList> readBody(const std::string& body) {
  return readPropertyList(std::string(plistHead) + body + std::string(plistFoot));
}

Data bytesOf(std::string_view text) {
  const auto* first = reinterpret_cast<const std::byte*>(text.data());
  return Data(first, first + text.size());
}

struct Row {
  std::string body;
  std::optional<PropertyList> value;
};

void expectRows(const std::vector<Row>& rows) {
  for (const Row& row : rows) EXPECT_EQ(readBody(row.body), row.value) << row.body;
}

TEST(XmlPropertyList, keepsSignAndSixtyFourBitsOfIntegers) {
  const std::uint64_t most = ~std::uint64_t{0};
  expectRows({{"<integer>0</integer>", Integer{0, false}},
              {"<integer>-0</integer>", Integer{0, false}},
              {"<integer>+7</integer>", Integer{7, false}},
              {"<integer> 12\n</integer>", Integer{12, false}},
              {"<integer>- 5</integer>", Integer{5, true}},
              {"<integer>+\t0x1F</integer>", Integer{31, false}},
              {"<integer>- -5</integer>", std::nullopt},
              {"<integer>-</integer>", std::nullopt},
              {"<integer>007</integer>", Integer{7, false}},
              {"<integer>-9223372036854775808</integer>", Integer{std::uint64_t{1} << 63, true}},
              {"<integer>18446744073709551615</integer>", Integer{most, false}},
              {"<integer>18446744073709551616</integer>", std::nullopt},
              {"<integer>0xfF</integer>", Integer{255, false}},
              {"<integer>-0X10</integer>", Integer{16, true}},
              {"<integer>0xFFFFFFFFFFFFFFFF</integer>", Integer{most, false}},
              {"<integer>0x</integer>", std::nullopt},
              {"<integer/>", std::nullopt},
              {"<integer>--1</integer>", std::nullopt},
              {"<integer>1.5</integer>", std::nullopt},
              {"<integer>1 2</integer>", std::nullopt},
              {"<integer>１</integer>", std::nullopt}});
}

TEST(XmlPropertyList, keepsTheTextOfReals) {
  for (const char* text : {"1.50", "-0.0", "0", "1E+5", ".5", "5.", "+1.25", "1e999", "nan", "inf", "+infinity",
                           "-Infinity", "0.1000000000000000055511151231257827"}) {
    EXPECT_EQ(readBody("<real>" + std::string(text) + "</real>"), PropertyList(Real{text}));
  }
  expectRows({{"<real> 1.5 </real>", Real{"1.5"}},
              {"<real/>", std::nullopt},
              {"<real>one</real>", std::nullopt},
              {"<real>1,5</real>", std::nullopt},
              {"<real>+-1</real>", std::nullopt},
              {"<real>1.5.2</real>", std::nullopt}});
}

TEST(XmlPropertyList, keepsTheTextOfDates) {
  expectRows({{"<date>2009-01-31T12:00:00Z</date>", Date{"2009-01-31T12:00:00Z"}},
              {"<date>-0044-03-15T12:00:00Z</date>", Date{"-0044-03-15T12:00:00Z"}},
              {"<date>2009Z</date>", Date{"2009Z"}},
              {"<date/>", std::nullopt},
              {"<date>yesterday</date>", std::nullopt}});
}

TEST(XmlPropertyList, readsData) {
  expectRows({{"<data>AAEC</data>", bytesOf({"\0\1\2", 3})},
              {"<data>\n\tAA\n\tEC\r\n</data>", bytesOf({"\0\1\2", 3})},
              {"<data>Zm9vYg==</data>", bytesOf("foob")},
              {"<data>Zm9vYmE = </data>", bytesOf("fooba")},
              {"<data/>", Data{}},
              {"<data> </data>", Data{}},
              {"<data>Zm9vYg=</data>", std::nullopt},
              {"<data>Zm9vYg</data>", std::nullopt},
              {"<data>Zg===</data>", std::nullopt},
              {"<data>=</data>", std::nullopt},
              {"<data>====</data>", std::nullopt},
              {"<data>Zg==Zg==</data>", std::nullopt},
              {"<data>Zh==</data>", std::nullopt},
              {"<data>Zm9*</data>", std::nullopt}});
}

TEST(XmlPropertyList, readsTextAsItStands) {
  expectRows({{"<string></string>", ""},
              {"<string/>", ""},
              {"<string> a \n\tb </string>", " a \n\tb "},
              {"<string>a\r\nb&#13;c</string>", "a\nb\rc"},
              {"<string>&lt;&gt;&amp;&quot;&apos;&#x8F9E;&#26360;</string>", "<>&\"'辞書"},
              {"<string>a<![CDATA[<b>&amp;]]>c</string>", "a<b>&amp;c"},
              {"<string>a<!-- no -->b<?no text?>c</string>", "abc"},
              {"<string>&#x1F600;か゛</string>", "\U0001F600か゛"}});
}

TEST(XmlPropertyList, readsContainers) {
  Dictionary dictionary;
  dictionary.set("", Array{PropertyList(true), PropertyList(false)});
  dictionary.set("名前", Dictionary{});
  expectRows({{"<array/>", Array{}},
              {"<dict/>", Dictionary{}},
              {"<dict><key>名前</key><dict/> <key></key><array><true/><false> </false></array></dict>", dictionary},
              {"<!-- a --><array><!-- b --><?c d?></array><!-- e -->", Array{}}});
}

TEST(XmlPropertyList, theLaterOfTwoEntriesWithOneKeyCounts) {
  Dictionary expected;
  expected.set("a", 2);
  expectRows({{"<dict><key>a</key><integer>1</integer><key>a</key><integer>2</integer></dict>", expected}});
}

TEST(XmlPropertyList, takesNothingOfABrokenList) {
  const std::vector<std::string> bodies{"",
                                        "text",
                                        "<string>a</string><string>b</string>",
                                        "<set/>",
                                        "<array><nil/></array>",
                                        "<Array/>",
                                        "<key>a</key>",
                                        "<array><key>a</key></array>",
                                        "<array>text</array>",
                                        "<dict><key>a</key></dict>",
                                        "<dict><true/></dict>",
                                        "<dict><key>a</key><key>b</key><true/></dict>",
                                        "<dict>a<key>a</key><true/></dict>",
                                        "<dict><key>a<b/></key><true/></dict>",
                                        "<string><string/></string>",
                                        "<string>a<true/></string>",
                                        "<true>1</true>",
                                        "<array><plist/></array>",
                                        "<plist><true/></plist>",
                                        "<array>",
                                        "<array></dict>",
                                        "<string>&#0;</string>",
                                        "<string>&#1;</string>",
                                        "<string>&#xFFFF;</string>",
                                        "<string>&#xD800;</string>",
                                        "<string>\x01</string>",
                                        "<string>\xFF</string>",
                                        "<string>\xED\xA0\x80</string>",
                                        "<string>&missing;</string>"};
  for (const std::string& body : bodies) EXPECT_EQ(readBody(body), std::nullopt) << body;
  for (const char* file : {"", " ", "text", "<", "<?xml version=\"1.0\"?>", "bplist", "{ a = b; }"}) {
    EXPECT_EQ(readPropertyList(file), std::nullopt) << file;
  }
}

TEST(XmlPropertyList, acceptsNothingBehindTheEnd) {
  const std::string whole = writePropertyList(PropertyList(1));
  EXPECT_TRUE(readPropertyList(whole + "\n <!-- end -->\n"));
  EXPECT_FALSE(readPropertyList(whole + "x"));
  EXPECT_FALSE(readPropertyList(whole + whole));
  EXPECT_FALSE(readPropertyList(whole + std::string(1, '\0')));
}

std::string nested(int depth, const std::string& open, const std::string& close, const std::string& leaf) {
  std::string text;
  for (int i = 1; i < depth; ++i) text += open;
  text += leaf;
  for (int i = 1; i < depth; ++i) text += close;
  return text;
}

TEST(XmlPropertyList, anElementBelowTheMaximumDepthGivesNothing) {
  const auto array = [](int depth, const char* leaf) { return readBody(nested(depth, "<array>", "</array>", leaf)); };
  const auto dictionary = [](int depth) { return readBody(nested(depth, "<dict><key>a</key>", "</dict>", "<dict/>")); };
  EXPECT_TRUE(array(plistMaximumDepth, "<array/>"));
  EXPECT_TRUE(array(plistMaximumDepth, "<true/>"));
  EXPECT_TRUE(dictionary(plistMaximumDepth));
  EXPECT_FALSE(array(plistMaximumDepth + 1, "<array/>"));
  EXPECT_FALSE(array(plistMaximumDepth + 1, "<true/>"));
  EXPECT_FALSE(dictionary(plistMaximumDepth + 1));
  EXPECT_FALSE(array(1'000'000, "<true/>"));
}

TEST(XmlPropertyList, everyListCutShortGivesNothing) {
  const std::string whole =
      std::string(plistHead) +
      "<dict><key>a</key><array><integer>-1</integer><real>1.5</real><true/><false/></array><key>日本</key>"
      "<data>AAEC</data><key>c</key><dict><key>d</key><date>2009-01-31T12:00:00Z</date><key>&amp;</key><string/>"
      "</dict></dict></plist>";
  ASSERT_TRUE(readPropertyList(whole));
  for (std::size_t size = 0; size < whole.size(); ++size) {
    EXPECT_FALSE(readPropertyList(whole.substr(0, size))) << size;
  }
}

// What is read at all must be a sound value: it can be written, and what was written reads back the same.
TEST(XmlPropertyList, whatSurvivesAWrongByteIsSound) {
  const std::string whole =
      "<plist><dict><key>a</key><array><integer>-12</integer><real>1.5</real><true/></array><key>日</key>"
      "<data>AAEC</data><key>c</key><date>2009-01-31T12:00:00Z</date><key>&amp;</key><string>x</string></dict></plist>";
  ASSERT_TRUE(readPropertyList(whole));
  for (std::size_t position = 0; position < whole.size(); ++position) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string changed = whole;
      changed[position] = static_cast<char>(byte);
      const auto value = readPropertyList(changed);
      if (!value) continue;
      EXPECT_EQ(readPropertyList(writePropertyList(*value)), value) << changed;
    }
  }
}

}  // namespace
}  // namespace tarvo
