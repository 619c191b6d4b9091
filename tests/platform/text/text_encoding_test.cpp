// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/text_encoding.h"

#include <gtest/gtest.h>

#include <sstream>

#include "platform/text/utf8.h"
#include "tests/support/shell.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

// A line for each code point beyond ASCII: its number, a tab, the character.
std::string everyCodePoint() {
  std::string lines;
  for (char32_t codePoint = 0x80; codePoint < 0x110000; ++codePoint) {
    if (codePoint >= 0xD800 && codePoint < 0xE000) continue;
    lines += std::to_string(codePoint) + '\t';
    appendCodePoint(lines, codePoint);
    lines += '\n';
  }
  return lines;
}

TEST(ShiftJis, agreesWithTheSystemsConverterOnEveryCodePoint) {
  const test::TemporaryFolder folder;
  const std::string lines = everyCodePoint();
  folder.write("lines", lines);
  // The converter leaves out what it cannot express and then ends with a failure.
  const std::string oracle =
      test::outputOf("iconv -c -f UTF-8 -t CP932 " + test::quoted(folder / "lines") + " 2>/dev/null || true");
  std::istringstream expected(oracle), actual(shiftJisFromUtf8(lines));
  int count = 0;
  for (std::string want, got; std::getline(expected, want) && std::getline(actual, got); ++count) {
    if (want.ends_with('\t')) want += '?';
    ASSERT_EQ(got, want);
    const std::size_t size = got.size() - got.find('\t') - 1;
    ASSERT_TRUE(size == 1 || size == 2) << got;
  }
  EXPECT_EQ(count, 0x110000 - 0x800 - 0x80);
}

TEST(ShiftJis, bothSpellingsOfACellAreKnownAndTheRestIsOneQuestionMark) {
  const struct {
    std::string_view text, bytes;
  } rows[] = {
      {"", ""},
      {"A\r\n~\\", "A\r\n~\\"},
      {"医学", "\x88\xE3\x8A\x77"},
      {"\u301C\uFF5E", "\x81\x60\x81\x60"},
      {"\u2016\u2225", "\x81\x61\x81\x61"},
      {"\u2212\uFF0D", "\x81\x7C\x81\x7C"},
      {"\u00A2\uFFE0", "\x81\x91\x81\x91"},
      {"\u00A3\uFFE1", "\x81\x92\x81\x92"},
      {"\u00AC\uFFE2", "\x81\xCA\x81\xCA"},
      {"\u2014\u2015", "\x81\x5C\x81\x5C"},
      {"\u00A5\u203E", "\x5C\x7E"},
      {"ｱ", "\xB1"},
      {"①髙", "\x87\x40\xFB\xFC"},
      {"é", "?"},
      {"カ\u3099", "\x83\x4A?"},
      {"😀", "?"},
      {"\U000E0041", "?"},
      {"\uFEFF", "?"},
      {"a\xFF\xE3\x81z", "a???z"},
      {std::string_view("a\0b", 3), std::string_view("a\0b", 3)},
  };
  for (const auto& row : rows) EXPECT_EQ(shiftJisFromUtf8(row.text), row.bytes) << row.text;
}

TEST(ShiftJis, isReadStrictly) {
  EXPECT_EQ(utf8FromShiftJis("tMG8"), "tMG8");
  EXPECT_EQ(utf8FromShiftJis("\x88\xE3\x8A\x77 \xB1"), "医学 ｱ");
  EXPECT_EQ(utf8FromShiftJis(""), "");
  for (const char* broken : {"\x88", "a\x81\x20", "\x81", "\xFF\xFF"})
    EXPECT_EQ(utf8FromShiftJis(broken), std::nullopt);
}

TEST(ShiftJis, whatItHoldsComesBackAsAnEqualSpelling) {
  for (char32_t codePoint = 0x20; codePoint < 0xD800; ++codePoint) {
    std::string text;
    appendCodePoint(text, codePoint);
    const std::string bytes = shiftJisFromUtf8(text);
    if (bytes == "?") continue;
    const auto again = utf8FromShiftJis(bytes);
    ASSERT_TRUE(again) << text;
    ASSERT_EQ(shiftJisFromUtf8(*again), bytes) << text;
  }
}

TEST(Utf16, isReadInTheOrderOfItsMarkElseBigEndian) {
  const struct {
    std::string_view bytes;
    std::optional<std::string> text;
  } rows[] = {
      {"", ""},
      {{"\0t\0M", 4}, "tM"},
      {{"\xFE\xFF\0t", 4}, "t"},
      {{"\xFF\xFEt\0", 4}, "t"},
      {{"\xFF\xFE", 2}, ""},
      {{"\xFE\xFF\xFF\xFEt\0", 6}, "\uFFFE\u7400"},  // only one mark is taken off
      {{"\xFF\xFE\xFF\xFEt\0", 6}, "\uFEFFt"},
      {{"\xD8\x3D\xDE\x00", 4}, "😀"},
      {{"\xFF\xFE\x3D\xD8\x00\xDE", 6}, "😀"},
      {{"\0", 1}, std::nullopt},
      {{"\xFF\xFEt", 3}, std::nullopt},
      {{"\xD8\x3D", 2}, std::nullopt},
      {{"\xD8\x3D\0t", 4}, std::nullopt},
      {{"\xDE\x00\xD8\x3D", 4}, std::nullopt},
      {{"\xFF\xFF", 2}, "\uFFFF"},
  };
  for (const auto& row : rows) EXPECT_EQ(utf8FromUtf16(row.bytes), row.text) << testing::PrintToString(row.bytes);
}

TEST(Utf16, agreesWithPythonOnEveryPairOfUnits) {
  const test::TemporaryFolder folder;
  std::string actual;
  const auto unit = [](unsigned value) {
    return std::string{static_cast<char>(value >> 8), static_cast<char>(value & 0xFF)};
  };
  const unsigned units[] = {0x41, 0x7FF, 0x800, 0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFF};
  for (const unsigned a : units) {
    for (const unsigned b : units) actual += utf8FromUtf16("\xFE\xFF" + unit(a) + unit(b)).value_or("-") + "\n";
  }
  folder.write("oracle.py",
               "import sys\n"
               "units = [0x41, 0x7FF, 0x800, 0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFF]\n"
               "for a in units:\n"
               "    for b in units:\n"
               "        pair = a.to_bytes(2, 'big') + b.to_bytes(2, 'big')\n"
               "        try: text = pair.decode('utf-16-be')\n"
               "        except UnicodeDecodeError: text = '-'\n"
               "        sys.stdout.buffer.write(text.encode() + b'\\n')\n");
  EXPECT_EQ(actual, test::outputOf("python3 " + test::quoted(folder / "oracle.py")));
}

}  // namespace
}  // namespace tarvo
