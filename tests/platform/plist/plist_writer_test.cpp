// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_writer.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_reader.h"

namespace tarvo {
namespace {

using namespace std::string_literals;

std::string written(const PropertyList& value, int depth = 0) {
  std::string out;
  appendValue(out, value, depth);
  return out;
}

TEST(PlistWriter, canHoldExactlyTheTextsThatComeBackAsTheyWere) {
  for (const std::string& text :
       {""s, "a & <b>"s, "日本語 🈂"s, "tab\tline\nreturn\r"s, "\x7F"s, "nul\0"s, "bell\x07"s, "\x1F"s, "\xEF\xBF\xBE"s,
        "\xEF\xBF\xBF"s, "\xEF\xBF\xBD"s, "\xFF"s, "half \xE6\x97"s, "\xED\xA0\x80"s, "\xC0\x80"s}) {
    const std::optional<PropertyList> read = readPropertyList(writePropertyList(Array{PropertyList(text)}));
    ASSERT_TRUE(read && read->array() != nullptr && read->array()->size() == 1U);
    EXPECT_EQ(canHoldText(text), *read->array()->front().string() == text) << text;
  }
}

constexpr const char* wholeFile =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n"
    "<dict>\n"
    "\t<key>a</key>\n"
    "\t<data>\n"
    "\tAAEC\n"
    "\t</data>\n"
    "\t<key>b</key>\n"
    "\t<array>\n"
    "\t\t<integer>-1</integer>\n"
    "\t\t<true/>\n"
    "\t\t<false/>\n"
    "\t\t<dict>\n"
    "\t\t\t<key>名前</key>\n"
    "\t\t\t<string>&lt;特許&gt; &amp; \"x\"</string>\n"
    "\t\t</dict>\n"
    "\t</array>\n"
    "\t<key>c</key>\n"
    "\t<dict/>\n"
    "\t<key>d</key>\n"
    "\t<array/>\n"
    "\t<key>e</key>\n"
    "\t<real>1.50</real>\n"
    "\t<key>f</key>\n"
    "\t<date>2009-01-31T12:00:00Z</date>\n"
    "</dict>\n"
    "</plist>\n";

TEST(PlistWriter, writesAWholeFile) {
  Dictionary inner;
  inner.set("名前", "<特許> & \"x\"");
  Dictionary root;
  root.set("b", Array{PropertyList(-1), PropertyList(true), PropertyList(false), PropertyList(inner)});
  root.set("a", Data{std::byte{0}, std::byte{1}, std::byte{2}});
  root.set("c", Dictionary{});
  root.set("d", Array{});
  root.set("e", Real{"1.50"});
  root.set("f", Date{"2009-01-31T12:00:00Z"});
  EXPECT_EQ(writePropertyList(root), wholeFile);
}

struct Text {
  std::string text, escaped;
};

TEST(PlistWriter, replacesOnlyWhatXmlCannotHold) {
  const std::string gap = "\xEF\xBF\xBD";
  const std::vector<Text> rows{{"a\tb\nc", "a\tb\nc"},
                               {"a\r\nb\r", "a&#13;\nb&#13;"},
                               {"a\0b\x01\x1F"s, "a" + gap + "b" + gap + gap},
                               {"\x7F\xC2\x80", "\x7F\xC2\x80"},
                               {"\xEF\xBF\xBE|\xEF\xBF\xBF|\xEF\xBF\xBD", gap + "|" + gap + "|" + gap},
                               {"\xED\xA0\x80|\xED\xBF\xBF|\xED\x9F\xBF", gap + "|" + gap + "|\xED\x9F\xBF"},
                               {"\xFF|\xE8\xBE", gap + "|" + gap + gap},
                               {"\xED\xA0", gap + gap},
                               {"辞書\U0001F600", "辞書\U0001F600"}};
  for (const Text& row : rows) {
    EXPECT_EQ(written(row.text), "<string>" + row.escaped + "</string>\n");
    std::string key;
    appendKey(key, row.text, 1);
    EXPECT_EQ(key, "\t<key>" + row.escaped + "</key>\n");
    EXPECT_TRUE(readPropertyList(writePropertyList(row.text))) << row.escaped;
  }
}

TEST(PlistWriter, writesDataInLinesThatKeepWithinTheMargin) {
  Data data;
  for (int i = 0; i < 1000; ++i) {
    for (const int depth : {0, 2, 20}) {
      const std::string text = written(data, depth);
      EXPECT_EQ(readPropertyList(text), PropertyList(data)) << i;
      for (std::size_t start = 0, end = 0; start < text.size(); start = end + 1) {
        end = text.find('\n', start);
        const std::size_t tabs = static_cast<std::size_t>(depth);
        EXPECT_LE(end - start, tabs + std::max<std::size_t>(16, depth == 20 ? 16 : 76 - 8 * tabs));
      }
    }
    data.push_back(static_cast<std::byte>(i * 7));
  }
  EXPECT_EQ(written(Data{}, 1), "\t<data>\n\t</data>\n");
}

TEST(PlistWriter, writesTheWholeRangeOfIntegers) {
  EXPECT_EQ(written(Integer{~std::uint64_t{0}, false}), "<integer>18446744073709551615</integer>\n");
  EXPECT_EQ(written(Integer{std::uint64_t{1} << 63, true}), "<integer>-9223372036854775808</integer>\n");
  EXPECT_EQ(written(0), "<integer>0</integer>\n");
}

TEST(PlistWriter, joinedRecordsGiveTheSameBytesAsAWholeEncode) {
  for (std::size_t count = 0; count < 4; ++count) {
    Array records;
    std::vector<std::string> encoded;
    for (std::size_t i = 0; i < count; ++i) {
      Dictionary record;
      record.set("Name", "style " + std::to_string(i));
      records.emplace_back(record);
      encoded.push_back(written(record, 2));
    }
    Dictionary root;
    root.set("Style", records);
    std::string joined(plistHead);
    joined += "<dict>\n";
    appendKey(joined, "Style", 1);
    appendEncodedArray(joined, encoded, 1);
    joined += "</dict>\n";
    joined += plistFoot;
    EXPECT_EQ(joined, writePropertyList(root));
  }
}

}  // namespace
}  // namespace tarvo
