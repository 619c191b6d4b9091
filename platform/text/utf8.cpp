// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/utf8.h"

namespace tarvo {
namespace {

unsigned char byteAt(std::string_view text, std::size_t position) { return static_cast<unsigned char>(text[position]); }

// How many bytes follow a leading byte, and the smallest code point that may be written with so many.
struct Form {
  int following;
  char32_t bits, smallest;
};

Form formOf(unsigned char lead) {
  if (lead >= 0xC2 && lead < 0xE0) return {1, lead & 0x1Fu, 0x80};
  if (lead >= 0xE0 && lead < 0xF0) return {2, lead & 0x0Fu, 0x800};
  if (lead >= 0xF0 && lead < 0xF5) return {3, lead & 0x07u, 0x10000};
  return {0, 0, 0};
}

bool isScalarValue(char32_t codePoint) { return codePoint < 0xD800 || (codePoint > 0xDFFF && codePoint < 0x110000); }

}  // namespace

char32_t nextCodePoint(std::string_view text, std::size_t& position) {
  const std::size_t start = position++;
  const unsigned char lead = byteAt(text, start);
  if (lead < 0x80) return lead;
  const Form form = formOf(lead);
  char32_t codePoint = form.bits;
  std::size_t next = start + 1;
  for (int i = 0; i < form.following; ++i, ++next) {
    if (next == text.size() || (byteAt(text, next) & 0xC0) != 0x80) return invalidByte + lead;
    codePoint = (codePoint << 6) | (byteAt(text, next) & 0x3Fu);
  }
  if (form.following == 0 || codePoint < form.smallest || !isScalarValue(codePoint)) return invalidByte + lead;
  position = next;
  return codePoint;
}

void appendCodePoint(std::string& out, char32_t codePoint) {
  const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(static_cast<unsigned char>(byte))); };
  if (codePoint >= invalidByte) return put(codePoint - invalidByte);
  if (codePoint < 0x80) return put(codePoint);
  if (codePoint < 0x800) {
    put(0xC0 | (codePoint >> 6));
  } else {
    if (codePoint < 0x10000) {
      put(0xE0 | (codePoint >> 12));
    } else {
      put(0xF0 | (codePoint >> 18));
      put(0x80 | ((codePoint >> 12) & 0x3F));
    }
    put(0x80 | ((codePoint >> 6) & 0x3F));
  }
  put(0x80 | (codePoint & 0x3F));
}

}  // namespace tarvo
