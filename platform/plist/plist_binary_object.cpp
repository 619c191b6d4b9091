// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_binary_object.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "platform/plist/plist_numbers.h"
#include "platform/text/utf8.h"

namespace tarvo {
namespace {

// The low half of a number's first byte: two to this power is its size in bytes.
constexpr unsigned fourBytes = 2, eightBytes = 3, sixteenBytes = 4;

// Sixteen bytes hold what is above int64, or below zero; what needs more than 64 bits is refused.
std::optional<PropertyList> integerFromSixteenBytes(std::string_view bytes) {
  const std::uint64_t high = bigEndian(bytes.substr(0, 8)), low = bigEndian(bytes.substr(8));
  if (high == 0) return PropertyList(Integer{low, false});
  if (high == ~std::uint64_t{0} && low != 0) return PropertyList(Integer{~low + 1, true});
  return std::nullopt;
}

bool isSurrogate(char32_t unit) { return unit >= 0xD800 && unit < 0xE000; }
bool isPair(char32_t high, char32_t low) { return high >= 0xD800 && high < 0xDC00 && low >= 0xDC00 && low < 0xE000; }

std::string utf8FromUnits(std::string_view bytes) {
  const auto unit = [bytes](std::size_t i) {
    return i < bytes.size() ? static_cast<char32_t>(bigEndian(bytes.substr(i, 2))) : 0;
  };
  std::string text;
  text.reserve(bytes.size() / 2 * 3);
  for (std::size_t i = 0; i < bytes.size(); i += 2) {
    char32_t codePoint = unit(i);
    if (isPair(codePoint, unit(i + 2))) {
      i += 2;
      codePoint = 0x10000 + ((codePoint - 0xD800) << 10) + (unit(i) - 0xDC00);
    }
    appendCodePoint(text, isSurrogate(codePoint) ? U'\uFFFD' : codePoint);
  }
  return text;
}

}  // namespace

std::optional<PropertyList> BinaryObject::takeConstant() const {
  constexpr unsigned no = 8, yes = 9;
  if (low != no && low != yes) return std::nullopt;
  return PropertyList(low == yes);
}

// One, two and four bytes have no sign.
std::optional<PropertyList> BinaryObject::takeInteger() {
  if (low > sixteenBytes) return std::nullopt;
  const auto bytes = take(std::uint64_t{1} << low);
  if (!bytes) return std::nullopt;
  if (low == sixteenBytes) return integerFromSixteenBytes(*bytes);
  const std::uint64_t bits = bigEndian(*bytes);
  return PropertyList(low == eightBytes ? integerFromBits(bits) : Integer{bits, false});
}

std::optional<PropertyList> BinaryObject::takeReal() {
  if (low != fourBytes && low != eightBytes) return std::nullopt;
  const auto bits = takeNumber(std::uint64_t{1} << low);
  if (!bits) return std::nullopt;
  const double number = low == eightBytes
                            ? std::bit_cast<double>(*bits)
                            : static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(*bits)));
  return PropertyList(Real{textFromReal(number)});
}

std::optional<PropertyList> BinaryObject::takeDate() {
  const auto bits = low == eightBytes ? takeNumber(8) : std::nullopt;
  auto text = bits ? textFromDate(std::bit_cast<double>(*bits)) : std::nullopt;
  if (!text) return std::nullopt;
  return PropertyList(Date{std::move(*text)});
}

std::optional<std::string> BinaryObject::text(std::string_view bytes) const {
  if (unitSize() == 2) return utf8FromUnits(bytes);
  const bool isClean = std::ranges::all_of(bytes, [](char c) { return (c & 0x80) == 0; });
  return isClean ? std::optional<std::string>(bytes) : std::nullopt;
}

}  // namespace tarvo
