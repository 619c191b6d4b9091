// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/caller_requests.h"

#include <gtest/gtest.h>

#include <vector>

namespace tarvo {
namespace {

std::string littleEndian(std::string_view ascii) {
  std::string bytes;
  for (const char c : ascii) bytes += {c, '\0'};
  return bytes;
}

std::string bigEndian(std::string_view ascii) {
  std::string bytes;
  for (const char c : ascii) bytes += {'\0', c};
  return bytes;
}

const std::optional<CallerRequest> ignored, officePane = CallerRequest{std::nullopt},
                                            thisManager = CallerRequest{Tool::manager};
std::optional<CallerRequest> tool(int place) { return CallerRequest{toolForPlace(place)}; }

struct Known {
  const char* code;
  std::optional<CallerRequest> meaning;
};
const std::vector<Known> everyCode{{"tMG8", tool(0)}, {"tQB8", tool(1)},        {"tTX8", tool(2)}, {"tGD8", tool(3)},
                                   {"tTM8", tool(4)}, {"tNP8", tool(5)},        {"MSWD", tool(6)}, {"XCEL", tool(6)},
                                   {"PPT3", tool(6)}, {"OfficeAddin", tool(6)}, {"Mail", tool(7)}, {"emal", tool(7)},
                                   {"OPIM", tool(7)}, {"offi", officePane}};

TEST(CallerRequests, knowEveryCodeInEveryForm) {
  for (const Known& known : everyCode) {
    EXPECT_EQ(callerRequestForCode(known.code), known.meaning) << known.code;
    EXPECT_EQ(decodeCallerRequest(littleEndian(known.code), 106), known.meaning) << known.code;
    EXPECT_EQ(decodeCallerRequest(known.code, 104), known.meaning) << known.code;
  }
}

TEST(CallerRequests, compareCodesExactly) {
  using namespace std::string_literals;
  for (const std::string& code : {"tqb8"s, "OFFI"s, "mail"s, "tQB8 "s, " tQB8"s, "tQB8\0"s, "tQB"s, "offi\n"s, ""s,
                                  "tUD8"s, "tTL8"s, "QB"s, "ｔＱＢ８"s}) {
    EXPECT_EQ(callerRequestForCode(code), thisManager) << code;
    EXPECT_EQ(decodeCallerRequest(littleEndian(code), 106), thisManager) << code;
  }
}

struct Bytes {
  const char* name;
  std::optional<std::string> bytes;
  int version;
  std::optional<CallerRequest> expected;
};

class CallerBytes : public testing::TestWithParam<Bytes> {};

TEST_P(CallerBytes, areRead) {
  EXPECT_EQ(decodeCallerRequest(GetParam().bytes, GetParam().version), GetParam().expected);
}

using namespace std::string_literals;
INSTANTIATE_TEST_SUITE_P(
    CallerRequests, CallerBytes,
    testing::Values(
        Bytes{"withoutAFirstItem", std::nullopt, 106, ignored},
        Bytes{"withoutAFirstItemEarlier", std::nullopt, 0, ignored}, Bytes{"emptyOne", ""s, 106, thisManager},
        Bytes{"emptyOneEarlier", ""s, 104, thisManager}, Bytes{"utf16From105", littleEndian("tQB8"), 105, tool(1)},
        Bytes{"shiftJisUpTo104", "tQB8"s, 104, tool(1)}, Bytes{"shiftJisOn10_10", "tQB8"s, 101, tool(1)},
        Bytes{"utf16On10_10", littleEndian("tQB8"), 101, thisManager},
        Bytes{"shiftJisWithoutAVersion", "tQB8"s, 0, tool(1)},
        Bytes{"utf16WithoutAVersion", littleEndian("tQB8"), 0, thisManager},
        Bytes{"utf16On11_2", littleEndian("tQB8"), 112, tool(1)},
        Bytes{"bigEndianReadAsLittle", bigEndian("tQB8"), 106, thisManager},
        Bytes{"markOfItsOwn", "\xFF\xFE"s + littleEndian("tQB8"), 106, thisManager},
        Bytes{"bigEndianMarkOfItsOwn", "\xFE\xFF"s + bigEndian("tQB8"), 106, thisManager},
        Bytes{"markAndNoMore", "\xFF\xFE"s, 106, thisManager},
        Bytes{"startThatTakesNoMark", "\xFF\xFF"s + littleEndian("tQB8"), 106, thisManager},
        Bytes{"otherStartThatTakesNoMark", "\xFE\xFE"s + bigEndian("tQB8"), 106, thisManager},
        Bytes{"halfAPairBehindThatStart", "\xFF\xFF\xD8\x00"s, 106, ignored},
        Bytes{"halfAPairBehindTheOtherStart", "\xFE\xFE\xD8\x00"s, 106, ignored}, Bytes{"oneByte", "t"s, 106, ignored},
        Bytes{"oddLength", littleEndian("tQB8") + "x", 106, ignored},
        Bytes{"asciiOfEvenLength", "tQB8"s, 106, thisManager}, Bytes{"asciiOfOddLength", "OfficeAddin"s, 106, ignored},
        Bytes{"loneHighSurrogate", "\x00\xD8"s, 106, ignored}, Bytes{"loneLowSurrogate", "\x00\xDC"s, 106, ignored},
        Bytes{"creatorCodeEarlier", "\x4D\x53\x57\x44"s, 104, tool(6)},
        Bytes{"utf16Earlier", littleEndian("MSWD"), 104, thisManager}, Bytes{"loneLeadByte", "\x81"s, 104, ignored},
        Bytes{"leadByteAtTheEnd", "\x74\x81"s, 104, ignored},
        Bytes{"japaneseEarlier", "\x93\xFA\x96\x7B"s, 104, thisManager},
        Bytes{"officePaneInUtf16", littleEndian("offi"), 106, officePane}),
    [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace tarvo
