// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/style_payload.h"

#include <gtest/gtest.h>

#include "platform/engine/content_hash.h"
#include "platform/plist/plist_reader.h"
#include "tests/support/encoded_styles.h"

namespace tarvo {
namespace {

using test::EncodedStyles;

const std::string hashOfNothing = contentHash("");

std::string frontAround(const std::string& rest, const std::string& revision = "7") {
  return EncodedStyles::front(contentHash(rest), revision) + rest;
}

TEST(ContentHash, isSha256) {
  EXPECT_EQ(contentHash(""), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
  EXPECT_EQ(contentHash("abc"), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

TEST(SetStamp, survivesItsText) {
  for (const std::uint64_t revision : {std::uint64_t{1}, std::uint64_t{42}, lastRevision}) {
    const SetStamp stamp{revision, hashOfNothing};
    EXPECT_EQ(SetStamp::parse(stamp.text()), stamp) << stamp.text();
    EXPECT_EQ(stamp.text().size(), 85U);
  }
}

TEST(SetStamp, foreignTextsAreNoSets) {
  const std::string digits(19, '0');
  for (const std::string& text :
       {std::string(), std::string("U1"), digits + "1", digits + "1 2026-01-02T03:04:05Z",
        digits + "0 " + hashOfNothing, "09" + digits.substr(1) + "0 " + hashOfNothing, digits + "x " + hashOfNothing,
        digits + "1-" + hashOfNothing, digits + "1 " + hashOfNothing.substr(1) + "G",
        digits + "1 " + hashOfNothing + " ", "-" + digits + " " + hashOfNothing}) {
    EXPECT_EQ(SetStamp::parse(text), SetStamp()) << text;
  }
}

TEST(SetStamp, isNewerWithAGreaterRevisionOrTheSameOneAndAnotherHash) {
  const struct {
    SetStamp held, local;
    bool newer;
  } rows[] = {{{2, "a"}, {1, "b"}, true}, {{1, "a"}, {2, "b"}, false}, {{2, "a"}, {2, "a"}, false},
              {{2, "a"}, {2, "b"}, true}, {{1, "a"}, {}, true},        {{}, {}, false},
              {{}, {1, "a"}, false},      {{10, "a"}, {9, "a"}, true}, {{9, "b"}, {10, "a"}, false}};
  for (const auto& row : rows) {
    EXPECT_EQ(row.held.isNewerThan(row.local), row.newer) << row.held.text() << " | " << row.local.text();
  }
}

TEST(StylePayload, isAPropertyListThatIsReadBack) {
  const EncodedStyles styles({"標準", "<&>\r", "E-mail"});
  const StylePayload payload(styles.set());
  const std::string bytes = payload.bytes(41);
  const auto read = readPayload(bytes);
  ASSERT_TRUE(read);
  EXPECT_EQ(read->styles, styles.records);
  EXPECT_EQ(read->stamp, payload.stamp(41));
  const auto list = readPropertyList(bytes);
  ASSERT_TRUE(list && list->dictionary());
  EXPECT_EQ(*list->dictionary()->array("Style"), styles.records);
  EXPECT_EQ(list->dictionary()->integerValue("Revision"), 41);
  EXPECT_EQ(*list->dictionary()->string("Hash"), payload.stamp(41).hash);
}

TEST(StylePayload, itsFirstBytesTellItsStamp) {
  const EncodedStyles styles({"標準"});
  const StylePayload payload(styles.set());
  const std::string bytes = payload.bytes(lastRevision);
  ASSERT_GT(bytes.size(), payloadFrontSize);
  EXPECT_EQ(readPayloadFront(bytes.substr(0, payloadFrontSize)), payload.stamp(lastRevision));
  EXPECT_EQ(readPayloadFront(bytes.substr(0, 200)), std::nullopt);
}

TEST(StylePayload, onlyTheContentMakesTheHash) {
  const EncodedStyles one({"a"}), other({"b"});
  EXPECT_EQ(StylePayload(one.set()).stamp(1).hash, StylePayload(one.set()).stamp(2).hash);
  EXPECT_NE(StylePayload(one.set()).stamp(1).hash, StylePayload(other.set()).stamp(1).hash);
}

TEST(StylePayload, anEmptySetIsASet) {
  const EncodedStyles none({});
  const auto read = readPayload(StylePayload(none.set()).bytes(1));
  ASSERT_TRUE(read);
  EXPECT_TRUE(read->styles.empty());
}

TEST(StylePayload, everyCutAndEveryChangedByteIsNoticed) {
  const EncodedStyles styles({"標準"});
  const std::string bytes = StylePayload(styles.set()).bytes(7);
  const std::size_t digit = bytes.find("<integer>7") + 9;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    EXPECT_FALSE(readPayload(bytes.substr(0, i))) << i;
    std::string changed = bytes;
    changed[i] = static_cast<char>(changed[i] ^ 1);
    if (i == digit) continue;  // another revision
    EXPECT_FALSE(readPayload(changed)) << i;
  }
  EXPECT_FALSE(readPayload(bytes + "\n"));
}

TEST(StylePayload, whatIsNoArrayOfDictionariesIsNotTaken) {
  std::string deep = "\t<array><dict><key>a</key>";
  for (int i = 0; i < 600; ++i) deep += "<array>";
  for (int i = 0; i < 600; ++i) deep += "</array>";
  const std::string end = "</dict>\n</plist>\n";
  EXPECT_TRUE(readPayload(frontAround("\t<array><dict/></array>\n" + end))) << "the rows below fail for their styles";
  for (const std::string& rest :
       {"\t<string>text</string>\n" + end, "\t<dict/>\n" + end, "\t<array><string>a</string></array>\n" + end,
        "\t<array><dict/><array/></array>\n" + end, deep + "</dict></array>\n" + end, std::string("\t<array>\n"),
        "\t<array/><key>Style</key><string/>" + end, std::string()}) {
    EXPECT_FALSE(readPayload(frontAround(rest))) << rest.substr(0, 60);
  }
}

TEST(StylePayload, aDateThatOtherProgramsRefuseIsDamage) {
  const auto read = [](const std::string& date) {
    return readPayload(
        frontAround("\t<array><dict><key>a</key><date>" + date + "</date></dict></array></dict></plist>"));
  };
  EXPECT_TRUE(read("2009-01-31T12:00:00Z"));
  for (const char* date : {"----", "2009-02-30T00:00:00Z", "10000-01-01T00:00:00Z"}) EXPECT_FALSE(read(date)) << date;
}

TEST(StylePayload, revisionsThatCannotBeCountedOnAreDamage) {
  const std::string rest = "\t<array/>\n</dict>\n</plist>\n";
  EXPECT_TRUE(readPayload(frontAround(rest, "999999999999999999")));
  for (const char* revision : {"0", "", "-1", "+1", " 1", "1 ", "0x1", "1000000000000000000", "18446744073709551617"}) {
    EXPECT_FALSE(readPayload(frontAround(rest, revision))) << revision;
  }
}

}  // namespace
}  // namespace tarvo
