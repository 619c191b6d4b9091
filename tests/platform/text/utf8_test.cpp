// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/utf8.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "tests/support/shell.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

std::vector<char32_t> decoded(std::string_view text) {
  std::vector<char32_t> out;
  for (std::size_t i = 0; i < text.size();) out.push_back(nextCodePoint(text, i));
  return out;
}

char32_t invalid(unsigned char byte) { return invalidByte + byte; }

TEST(Utf8, everyCodePointSurvivesWritingAndReading) {
  for (char32_t codePoint = 0; codePoint < 0x110000; ++codePoint) {
    if (codePoint >= 0xD800 && codePoint < 0xE000) continue;
    std::string text;
    appendCodePoint(text, codePoint);
    std::size_t position = 0;
    ASSERT_EQ(nextCodePoint(text, position), codePoint);
    ASSERT_EQ(position, text.size());
  }
}

TEST(Utf8, bytesThatBeginNoSequenceAreTakenAlone) {
  const struct {
    std::string_view text;
    std::vector<char32_t> expected;
  } rows[] = {
      {"\x80", {invalid(0x80)}},
      {"a\xFFz", {'a', invalid(0xFF), 'z'}},
      {"\xC0\xAF", {invalid(0xC0), invalid(0xAF)}},
      {"\xE0\x80\x80", {invalid(0xE0), invalid(0x80), invalid(0x80)}},
      {"\xED\xA0\x80", {invalid(0xED), invalid(0xA0), invalid(0x80)}},
      {"\xF4\x90\x80\x80", {invalid(0xF4), invalid(0x90), invalid(0x80), invalid(0x80)}},
      {"\xE3\x81", {invalid(0xE3), invalid(0x81)}},
      {"\xE3\x81\x82", {0x3042}},
  };
  for (const auto& row : rows) EXPECT_EQ(decoded(row.text), row.expected) << testing::PrintToString(row.text);
}

TEST(Utf8, anyBytesSurviveReadingAndWriting) {
  std::mt19937 random(1);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes(random() % 12, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() % 3 == 0 ? random() : 0x80 + random() % 0x80);
    std::string again;
    for (const char32_t codePoint : decoded(bytes)) appendCodePoint(again, codePoint);
    ASSERT_EQ(again, bytes);
  }
}

// Every sequence of four bytes over a set that holds all boundaries of the table of well-formed sequences.
TEST(Utf8, agreesWithPythonOnWhatIsWellFormed) {
  const test::TemporaryFolder folder;
  const std::vector<unsigned char> bytes{0x41, 0x80, 0x8F, 0x90, 0x9F, 0xA0, 0xBF, 0xC0, 0xC1, 0xC2, 0xDF, 0xE0,
                                         0xE1, 0xEC, 0xED, 0xEE, 0xEF, 0xF0, 0xF1, 0xF3, 0xF4, 0xF5, 0xFF};
  const std::size_t size = bytes.size();
  std::string sequences, expected;
  for (std::size_t number = 0; number < size * size * size * size; ++number) {
    std::string sequence;
    for (std::size_t rest = number, i = 0; i < 4; ++i, rest /= size) {
      sequence += static_cast<char>(bytes[rest % size]);
    }
    bool wellFormed = true;
    for (const char32_t codePoint : decoded(sequence)) wellFormed = wellFormed && codePoint < invalidByte;
    sequences += sequence;
    expected += wellFormed ? '1' : '0';
  }
  folder.write("sequences", sequences);
  folder.write("oracle.py",
               "import sys\n"
               "def good(four):\n"
               "    try: four.decode('utf-8'); return '1'\n"
               "    except UnicodeDecodeError: return '0'\n"
               "data = open(sys.argv[1], 'rb').read()\n"
               "print(''.join(good(data[i:i+4]) for i in range(0, len(data), 4)), end='')\n");
  const std::string oracle = "python3 " + test::quoted(folder / "oracle.py") + " ";
  EXPECT_TRUE(test::outputOf(oracle + test::quoted(folder / "sequences")) == expected);
}

}  // namespace
}  // namespace tarvo
