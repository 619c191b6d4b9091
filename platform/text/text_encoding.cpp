// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/text_encoding.h"

#include <iconv.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>

#include "platform/text/utf8.h"

namespace tarvo {
namespace {

// The C library's table that holds both families of double-spelled cells; its "SHIFT_JIS" holds only one.
constexpr const char* shiftJis = "CP932";
constexpr const char* codePoints = "UTF-32LE";

class Converter {
 public:
  Converter(const char* to, const char* from) : handle_(::iconv_open(to, from)) {}
  Converter(const Converter&) = delete;
  Converter& operator=(const Converter&) = delete;
  ~Converter() {
    if (isOpen()) ::iconv_close(handle_);
  }
  bool isOpen() const { return handle_ != iconv_t(-1); }  // NOLINT(performance-no-int-to-ptr): so the C library says it

  // Converts all of the input; nothing when any of it has no counterpart.
  std::optional<std::string> convert(std::string_view input) {
    std::string out(input.size() * 3 + 4, '\0');  // no pair of these encodings grows more
    std::string copy(input);
    char* from = copy.data();
    char* to = out.data();
    std::size_t left = copy.size(), room = out.size();
    if (!isOpen()) return std::nullopt;
    const std::size_t irreversible = ::iconv(handle_, &from, &left, &to, &room);
    if (irreversible == std::size_t(-1) || left != 0) {
      ::iconv(handle_, nullptr, nullptr, nullptr, nullptr);  // back to its first state
      return std::nullopt;
    }
    out.resize(out.size() - room);
    return out;
  }

 private:
  iconv_t handle_;
};

struct Spelling {
  char32_t codePoint;
  std::string_view bytes;
};

// The JIS spellings of cells that code page 932 spells otherwise, for C libraries whose table lacks them: GNU libiconv,
// which is that of macOS up to 13, has no yen sign, overline and em dash. The table of glibc has all of them.
constexpr std::array<Spelling, 9> jisSpellings{{{0x00A2, "\x81\x91"},
                                                {0x00A3, "\x81\x92"},
                                                {0x00A5, "\x5C"},
                                                {0x00AC, "\x81\xCA"},
                                                {0x2014, "\x81\x5C"},
                                                {0x2016, "\x81\x61"},
                                                {0x203E, "\x7E"},
                                                {0x2212, "\x81\x7C"},
                                                {0x301C, "\x81\x60"}}};

std::string littleEndian(char32_t codePoint) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<char>((codePoint >> shift) & 0xFF));
  return bytes;
}

void appendShiftJis(std::string& out, Converter& converter, char32_t codePoint) {
  const auto bytes = codePoint < invalidByte ? converter.convert(littleEndian(codePoint)) : std::nullopt;
  const auto* jis = std::find_if(jisSpellings.begin(), jisSpellings.end(),
                                 [codePoint](const Spelling& each) { return each.codePoint == codePoint; });
  if (bytes && !bytes->empty()) {
    out += *bytes;
  } else if (jis != jisSpellings.end()) {
    out += jis->bytes;
  } else {
    out += '?';
  }
}

char32_t unitAt(std::string_view bytes, std::size_t position, bool littleEndianOrder) {
  const auto first = static_cast<unsigned char>(bytes[position]);
  const auto second = static_cast<unsigned char>(bytes[position + 1]);
  return littleEndianOrder ? (char32_t{second} << 8) | first : (char32_t{first} << 8) | second;
}

bool isHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xDC00; }
bool isLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit < 0xE000; }

}  // namespace

std::string shiftJisFromUtf8(std::string_view text) {
  Converter converter(shiftJis, codePoints);
  std::string out;
  for (std::size_t i = 0; i < text.size();) {
    const char32_t codePoint = nextCodePoint(text, i);
    if (codePoint < 0x80) {
      out.push_back(static_cast<char>(codePoint));
    } else {
      appendShiftJis(out, converter, codePoint);
    }
  }
  return out;
}

std::optional<std::string> utf8FromShiftJis(std::string_view bytes) {
  return Converter("UTF-8", shiftJis).convert(bytes);
}

std::optional<std::string> utf8FromUtf16(std::string_view bytes) {
  if (bytes.size() % 2 != 0) return std::nullopt;
  const bool littleEndianOrder = bytes.starts_with("\xFF\xFE");
  if (littleEndianOrder || bytes.starts_with("\xFE\xFF")) bytes.remove_prefix(2);
  std::string out;
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    char32_t codePoint = unitAt(bytes, i, littleEndianOrder);
    if (isLowSurrogate(codePoint)) return std::nullopt;
    if (isHighSurrogate(codePoint)) {
      i += 2;
      const char32_t low = i < bytes.size() ? unitAt(bytes, i, littleEndianOrder) : 0;
      if (!isLowSurrogate(low)) return std::nullopt;
      codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (low - 0xDC00);
    }
    appendCodePoint(out, codePoint);
  }
  return out;
}

std::optional<std::string> utf8FromUtf32(std::string_view bytes) {
  constexpr std::string_view littleMark("\xFF\xFE\0\0", 4), bigMark("\0\0\xFE\xFF", 4);
  constexpr char32_t last = 0x10FFFF;
  if (bytes.size() % 4 != 0) return std::nullopt;
  const bool littleEndianOrder = bytes.starts_with(littleMark);
  if (littleEndianOrder || bytes.starts_with(bigMark)) bytes.remove_prefix(4);
  std::string out;
  for (std::size_t i = 0; i < bytes.size(); i += 4) {
    const char32_t first = unitAt(bytes, i, littleEndianOrder), second = unitAt(bytes, i + 2, littleEndianOrder);
    const char32_t codePoint = littleEndianOrder ? (second << 16) | first : (first << 16) | second;
    if (codePoint > last || isHighSurrogate(codePoint) || isLowSurrogate(codePoint)) return std::nullopt;
    appendCodePoint(out, codePoint);
  }
  return out;
}

}  // namespace tarvo
