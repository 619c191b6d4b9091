// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Encodings other than UTF-8 that files and callers of the product use.
// Shift_JIS here is the table of code page 932, with the JIS spellings of the cells that have two Unicode forms (wave
// dash, double vertical line, minus sign, cent, pound and not sign, em dash, yen sign, overline).
namespace tarvo {

// One byte 3F stands for every code point that the encoding lacks; never fails.
std::string shiftJisFromUtf8(std::string_view text);
// Strict: nothing when the bytes are no Shift_JIS.
std::optional<std::string> utf8FromShiftJis(std::string_view bytes);
// With a byte-order mark in its order (that one mark is taken off), else big-endian. Nothing for an odd length or an
// unpaired surrogate; zero bytes are an empty text.
std::optional<std::string> utf8FromUtf16(std::string_view bytes);
// The same for four bytes a character; nothing also for what is no code point of a character.
std::optional<std::string> utf8FromUtf32(std::string_view bytes);

}  // namespace tarvo
