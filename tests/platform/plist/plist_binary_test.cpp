// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <bit>
#include <limits>
#include <string>

#include "platform/plist/plist_reader.h"
#include "tests/platform/plist/binary_plist.h"

namespace tarvo {
namespace {

using namespace std::string_literals;
using test::bigEndian;
using test::BinaryPlist;
using test::date;
using test::read;
using test::real;

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

}  // namespace
}  // namespace tarvo
