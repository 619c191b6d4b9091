// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/printable.h"

#include <cstddef>

#include "platform/text/utf8.h"

namespace tarvo {

namespace {

bool isShown(char32_t codePoint) {
  const bool isControl = codePoint < 0x20 || (codePoint >= 0x7F && codePoint < 0xA0);
  const bool breaksLine = codePoint == 0x2028 || codePoint == 0x2029;
  const bool turns = (codePoint >= 0x202A && codePoint <= 0x202E) || (codePoint >= 0x2066 && codePoint <= 0x2069);
  return !isControl && !breaksLine && !turns && codePoint < invalidByte;
}

void appendEscaped(std::string& out, std::string_view bytes) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  for (const char c : bytes) {
    const auto byte = static_cast<unsigned char>(c);
    out += "\\x";
    out += digits[byte >> 4];
    out += digits[byte & 15];
  }
}

}  // namespace

std::string printable(std::string_view text) {
  std::string shown;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t start = at;
    const bool isWhole = isShown(nextCodePoint(text, at));
    const std::string_view bytes = text.substr(start, at - start);
    if (isWhole) {
      shown += bytes;
    } else {
      appendEscaped(shown, bytes);
    }
  }
  return shown;
}

}  // namespace tarvo
