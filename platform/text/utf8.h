// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// UTF-8, one code point at a time. Source of the well-formed sequences: the Unicode Standard, table 3-7 (no surrogates,
// no overlong forms, nothing above U+10FFFF).
namespace tarvo {

// What nextCodePoint answers for a byte that begins no well-formed sequence: this value plus the byte.
constexpr char32_t invalidByte = 0x110000;

// The code point at the position, which moves behind it. A byte that begins no well-formed sequence is taken alone.
// position must be below text.size().
char32_t nextCodePoint(std::string_view text, std::size_t& position);
// Appends a code point, or the byte that an invalidByte value stands for.
void appendCodePoint(std::string& out, char32_t codePoint);

}  // namespace tarvo
