// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <string>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "tests/platform/plist/binary_plist.h"

namespace tarvo {
namespace {

using namespace std::string_literals;
using test::bigEndian;
using test::BinaryPlist;
using test::date;
using test::read;
using test::real;

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
    arrays.emplace_back(last);
    dictionaries.emplace_back(last);
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
