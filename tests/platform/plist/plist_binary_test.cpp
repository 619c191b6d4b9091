// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <string>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "tests/platform/plist/binary_plist.h"

namespace tarvo {
namespace {

using namespace std::string_literals;
using test::bigEndian;
using test::BinaryPlist;

std::optional<PropertyList> read(std::vector<std::string> objects) {
  return readPropertyList(BinaryPlist{std::move(objects)}.bytes());
}

std::string real(double value) { return "\x23" + bigEndian(std::bit_cast<std::uint64_t>(value), 8); }
std::string date(double seconds) { return "\x33" + bigEndian(std::bit_cast<std::uint64_t>(seconds), 8); }

struct Row {
  std::string object;
  std::optional<PropertyList> value;
};

void expectRows(const std::vector<Row>& rows) {
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(read({rows[i].object}), rows[i].value) << "row " << i;
}

TEST(BinaryPropertyList, readsIntegersOfEverySize) {
  const std::uint64_t most = ~std::uint64_t{0};
  expectRows({{"\x10\xFF", Integer{255, false}},
              {"\x11\xFF\xFF", Integer{65535, false}},
              {"\x12\xFF\xFF\xFF\xFF", Integer{4294967295U, false}},
              {"\x13" + bigEndian(most, 8), Integer{1, true}},
              {"\x13" + bigEndian(std::uint64_t{1} << 63, 8), Integer{std::uint64_t{1} << 63, true}},
              {"\x14" + bigEndian(0, 8) + bigEndian(most, 8), Integer{most, false}},
              {"\x14" + bigEndian(most, 8) + bigEndian(most, 8), Integer{1, true}},
              {"\x14" + bigEndian(most, 8) + bigEndian(0, 8), std::nullopt},
              {"\x14" + bigEndian(1, 8) + bigEndian(0, 8), std::nullopt},
              {"\x15" + std::string(32, '\0'), std::nullopt},
              {"\x1F" + std::string(40, '\0'), std::nullopt}});
}

TEST(BinaryPropertyList, givesRealsTheirShortestForm) {
  const double infinity = std::numeric_limits<double>::infinity();
  expectRows({{real(1.5), Real{"1.5"}},
              {real(0.1), Real{"0.1"}},
              {real(-0.0), Real{"-0.0"}},
              {real(0.0), Real{"0.0"}},
              {real(1e23), Real{"1e+23"}},
              {real(infinity), Real{"+infinity"}},
              {real(-infinity), Real{"-infinity"}},
              {real(std::numeric_limits<double>::quiet_NaN()), Real{"nan"}},
              {real(std::numeric_limits<double>::denorm_min()), Real{"5e-324"}},
              {"\x22" + bigEndian(std::bit_cast<std::uint32_t>(0.5F), 4), Real{"0.5"}},
              {"\x22" + bigEndian(std::bit_cast<std::uint32_t>(0.1F), 4), Real{"0.10000000149011612"}},
              {"\x21\x01\x02", std::nullopt},
              {"\x24" + std::string(16, '\0'), std::nullopt}});
}

TEST(BinaryPropertyList, givesDatesInWholeSeconds) {
  expectRows({{date(0), Date{"2001-01-01T00:00:00Z"}},
              {date(255096000.75), Date{"2009-01-31T12:00:00Z"}},
              {date(-0.25), Date{"2000-12-31T23:59:59Z"}},
              {date(-26438400), Date{"2000-03-01T00:00:00Z"}},
              {date(-26438401), Date{"2000-02-29T23:59:59Z"}},
              {date(-978307200), Date{"1970-01-01T00:00:00Z"}},
              {date(-3187296000), Date{"1900-01-01T00:00:00Z"}},
              {date(-63113904000), Date{"0001-01-01T00:00:00Z"}},
              {date(-63113904001), Date{"0000-12-31T23:59:59Z"}},
              {date(-63145526401), Date{"-0001-12-31T23:59:59Z"}},
              {date(252423993599), Date{"9999-12-31T23:59:59Z"}},
              {date(252423993600), Date{"10000-01-01T00:00:00Z"}},
              {date(std::numeric_limits<double>::quiet_NaN()), std::nullopt},
              {date(std::numeric_limits<double>::infinity()), std::nullopt},
              {date(-1e300), std::nullopt},
              {"\x32" + std::string(4, '\0'), std::nullopt}});
}

TEST(BinaryPropertyList, readsStringsAndData) {
  const std::string hundred(100, 'x');
  const auto* first = reinterpret_cast<const std::byte*>(hundred.data());
  expectRows({{"\x50", ""},
              {"\x53"
               "abc",
               "abc"},
              {"\x52"
               "a\0"s,
               "a\0"s},
              {"\x5F\x10\x64" + hundred, hundred},
              {"\x5F\x11\x00\x64"s + hundred, hundred},
              {"\x5F\x12" + bigEndian(100, 4) + hundred, hundred},
              {"\x5F\x13" + bigEndian(100, 8) + hundred, hundred},
              {"\x61\x8F\x9E", "辞"},
              {"\x62\xD8\x3D\xDE\x00"s, "\U0001F600"},
              {"\x62\xD8\x3D\x00\x41"s,
               "\xEF\xBF\xBD"
               "A"},
              {"\x61\xDE\x00"s, "\xEF\xBF\xBD"},
              {"\x61\xD8\x3D", "\xEF\xBF\xBD"},
              {"\x40", Data{}},
              {"\x4F\x10\x64" + hundred, Data(first, first + hundred.size())},
              {"\x51\x80", std::nullopt},
              {"\x53"
               "ab",
               std::nullopt},
              {"\x5F\x10\x65" + hundred, std::nullopt},
              {"\x5F\x14" + bigEndian(100, 16) + hundred, std::nullopt},
              {"\x5F\x22" + bigEndian(100, 4) + hundred, std::nullopt},
              {"\x5F", std::nullopt},
              {"\x5F\x13\x00"s, std::nullopt}});
}

TEST(BinaryPropertyList, readsConstantsAndUids) {
  Dictionary uid;
  uid.set("CF$UID", Integer{258, false});
  expectRows({{"\x08", false},
              {"\x09", true},
              {"\x81\x01\x02", uid},
              {"\x87" + bigEndian(258, 8), uid},
              {"\x88" + bigEndian(258, 9), std::nullopt},
              {"\0"s, std::nullopt},
              {"\x0F", std::nullopt},
              {"\x0C", std::nullopt},
              {"\x70", std::nullopt},
              {"\xB0", std::nullopt},
              {"\xC0", std::nullopt},
              {"\xF0", std::nullopt}});
}

TEST(BinaryPropertyList, readsContainersInAnyOrderOfKeys) {
  Dictionary expected;
  expected.set("a", Array{PropertyList("b"), PropertyList("b")});
  expected.set("b", Dictionary{});
  EXPECT_EQ(read({"\xD2\x02\x01\x04\x03",
                  "\x51"
                  "a",
                  "\x51"
                  "b",
                  "\xA2\x02\x02", "\xD0"}),
            PropertyList(expected));
}

TEST(BinaryPropertyList, theLaterOfTwoEntriesWithOneKeyCounts) {
  Dictionary expected;
  expected.set("a", 2);
  EXPECT_EQ(read({"\xD2\x01\x01\x02\x03",
                  "\x51"
                  "a",
                  "\x10\x01", "\x10\x02"}),
            PropertyList(expected));
}

TEST(BinaryPropertyList, readsEverySizeOfOffsetsAndReferences) {
  for (std::size_t offsetSize = 1; offsetSize <= 8; ++offsetSize) {
    for (std::size_t referenceSize = 1; referenceSize <= 8; ++referenceSize) {
      const BinaryPlist list{{"\xA1" + bigEndian(1, referenceSize), "\x09"}, offsetSize, referenceSize};
      EXPECT_EQ(readPropertyList(list.bytes()), PropertyList(Array{PropertyList(true)}));
    }
  }
  for (const std::size_t size : {0U, 9U, 16U, 255U}) {
    EXPECT_FALSE(readPropertyList(BinaryPlist{{"\x09"}, size, 1}.bytes()));
    EXPECT_FALSE(readPropertyList(BinaryPlist{{"\x09"}, 1, size}.bytes()));
  }
}

TEST(BinaryPropertyList, keysAreStrings) {
  for (const char* key : {"\x10\x01", "\x09", "\xA0",
                          "\x41"
                          "a"})
    EXPECT_FALSE(read({"\xD1\x01\x02", key, "\x09"}));
}

TEST(BinaryPropertyList, referencesStayWithinTheFile) {
  EXPECT_FALSE(read({"\xA1\x01"}));
  EXPECT_FALSE(read({"\xD1\x01\x02",
                     "\x51"
                     "a"}));
  EXPECT_FALSE(readPropertyList(BinaryPlist{{"\x09"}, 1, 1, 1}.bytes()));
  EXPECT_FALSE(readPropertyList(BinaryPlist{{"\x09"}, 1, 1, ~std::uint64_t{0}}.bytes()));
  const BinaryPlist list{{"\x09"}, 1, 1};
  const auto withOffset = [&list](int offset) {
    return "bplist00\x09" + std::string(1, static_cast<char>(offset)) + list.trailer(1, 9);
  };
  EXPECT_TRUE(readPropertyList(withOffset(8)));
  for (const int offset : {0, 7, 9, 10, 255}) EXPECT_FALSE(readPropertyList(withOffset(offset))) << offset;
}

TEST(BinaryPropertyList, theTrailerIsNotTrusted) {
  const std::string head = "bplist00\x09\x08";
  const BinaryPlist list{{}, 1, 1};
  EXPECT_TRUE(readPropertyList(head + list.trailer(1, 9)));
  for (const std::uint64_t count : {std::uint64_t{0}, std::uint64_t{2}, std::uint64_t{1} << 40, ~std::uint64_t{0}}) {
    EXPECT_FALSE(readPropertyList(head + list.trailer(count, 9))) << count;
  }
  for (const std::uint64_t offset : {std::uint64_t{0}, std::uint64_t{7}, std::uint64_t{10}, ~std::uint64_t{0}}) {
    EXPECT_FALSE(readPropertyList(head + list.trailer(1, offset))) << offset;
  }
}

TEST(BinaryPropertyList, hugeCountsGiveNothing) {
  for (const int kind : {0x4F, 0x5F, 0x6F, 0xAF, 0xDF}) {
    const std::string start(1, static_cast<char>(kind));
    for (int shift = 8; shift < 64; ++shift) {
      EXPECT_FALSE(read({start + "\x13" + bigEndian(std::uint64_t{1} << shift, 8)}));
      EXPECT_FALSE(read({start + "\x13" + bigEndian((std::uint64_t{1} << shift) - 1, 8)}));
    }
    EXPECT_FALSE(read({start + "\x13" + bigEndian(~std::uint64_t{0}, 8)}));
  }
}

TEST(BinaryPropertyList, aListThatHoldsItselfGivesNothing) {
  EXPECT_FALSE(read({"\xA1\x00"s}));
  EXPECT_FALSE(read({"\xA2\x01\x01", "\xA2\x00\x00"s}));
  EXPECT_FALSE(read({"\xD1\x01\x00"s,
                     "\x51"
                     "a"}));
}

// Each list holds the next one twice: forty of them would be a million million values.
TEST(BinaryPropertyList, sharedListsThatMultiplyGiveNothing) {
  std::vector<std::string> arrays, dictionaries;
  for (int i = 1; i <= 40; ++i) {
    const std::string next = bigEndian(static_cast<std::uint64_t>(i), 1);
    arrays.push_back("\xA2" + next + next);
    dictionaries.push_back("\xD2\x29\x2A" + next + next);
  }
  for (const char* last : {"\x09",
                           "\x51"
                           "a",
                           "\x51"
                           "b"}) {
    arrays.push_back(last);
    dictionaries.push_back(last);
  }
  EXPECT_FALSE(read(arrays));
  EXPECT_FALSE(read(dictionaries));
}

TEST(BinaryPropertyList, aSharedTextThatMultipliesGivesNothing) {
  const std::size_t references = 60'000, size = 60'000;
  BinaryPlist list{{"\xAF\x12" + bigEndian(references, 4), "\x5F\x12" + bigEndian(size, 4) + std::string(size, 'x')},
                   4};
  for (std::size_t i = 0; i < references; ++i) list.objects[0] += '\x01';
  EXPECT_FALSE(readPropertyList(list.bytes()));
}

TEST(BinaryPropertyList, manyRecordsThatShareTheirTextsAreRead) {
  const std::size_t records = 100'000;
  BinaryPlist list{{"\xAF\x12" + bigEndian(records, 4)}, 4, 4};
  list.objects.push_back("\x5F\x10\x40" + std::string(64, 'k'));
  for (std::size_t i = 0; i < records; ++i) {
    list.objects[0] += bigEndian(i + 2, 4);
    list.objects.push_back("\xD1" + bigEndian(1, 4) + bigEndian(1, 4));
  }
  const auto value = readPropertyList(list.bytes());
  ASSERT_TRUE(value && value->array());
  EXPECT_EQ(value->array()->size(), records);
}

TEST(BinaryPropertyList, aValueBelowTheMaximumDepthGivesNothing) {
  const auto nested = [](int depth, const std::string& leaf) {
    BinaryPlist list{{}, 2, 2};
    for (int i = 1; i < depth; ++i) list.objects.push_back("\xA1" + bigEndian(static_cast<std::uint64_t>(i), 2));
    list.objects.push_back(leaf);
    return readPropertyList(list.bytes());
  };
  for (const char* leaf : {"\x09", "\xA0"}) {
    const auto deepest = nested(plistMaximumDepth, leaf);
    ASSERT_TRUE(deepest);
    EXPECT_EQ(readPropertyList(writePropertyList(*deepest)), deepest);
    EXPECT_FALSE(nested(plistMaximumDepth + 1, leaf));
  }
  EXPECT_TRUE(nested(plistMaximumDepth - 1, "\x80\x01"));  // becomes a dictionary with a value
  EXPECT_FALSE(nested(plistMaximumDepth, "\x80\x01"));
  EXPECT_FALSE(nested(60'000, "\x09"));
}

std::string sample() {
  return BinaryPlist{{"\xD4\x01\x02\x03\x04\x05\x06\x07\x08",
                      "\x51"
                      "a",
                      "\x51"
                      "b",
                      "\x51"
                      "c",
                      "\x61\x8F\x9E", "\xA3\x06\x07\x09", "\x10\x07", date(255096000), "\x43\x01\x02\x03", real(1.5)},
                     1}
      .bytes();
}

TEST(BinaryPropertyList, everyListCutShortGivesNothing) {
  const std::string whole = sample();
  ASSERT_TRUE(readPropertyList(whole));
  for (std::size_t size = 0; size < whole.size(); ++size) EXPECT_FALSE(readPropertyList(whole.substr(0, size))) << size;
}

// What is read at all must be a sound value: it can be written, and from then on stays what it is.
TEST(BinaryPropertyList, whatSurvivesAWrongByteIsSound) {
  const std::string whole = sample();
  for (std::size_t position = 0; position < whole.size(); ++position) {
    for (int byte = 0; byte < 256; ++byte) {
      std::string changed = whole;
      changed[position] = static_cast<char>(byte);
      const auto value = readPropertyList(changed);
      if (!value) continue;
      const auto again = readPropertyList(writePropertyList(*value));
      ASSERT_TRUE(again) << position << ' ' << byte;
      EXPECT_EQ(readPropertyList(writePropertyList(*again)), again) << position << ' ' << byte;
    }
  }
}

}  // namespace
}  // namespace tarvo
