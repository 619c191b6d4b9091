// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/plist/property_list.h"

// One object of a binary property list, for plist_binary only.
// Duty: take it to pieces, and the values of those objects that hold no others. Not: references, limits of depth and
// memory. What takes a piece answers nothing when the bytes end before it.
namespace tarvo {

inline std::uint64_t bigEndian(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) number = (number << 8) | static_cast<unsigned char>(byte);
  return number;
}

struct BinaryObject {
  std::string_view rest;  // of the file behind what was taken, so it also holds the objects that follow
  unsigned kind, low;     // the two halves of the first byte

  std::optional<std::string_view> take(std::uint64_t size) {
    if (size > rest.size()) return std::nullopt;
    const std::string_view taken = rest.substr(0, size);
    rest.remove_prefix(size);
    return taken;
  }
  std::optional<std::uint64_t> takeNumber(std::uint64_t size) {
    const auto taken = take(size);
    return taken ? std::optional(bigEndian(*taken)) : std::nullopt;
  }
  // How many bytes, characters, items or entries follow: the low half, or an integer object where that is not enough.
  std::optional<std::uint64_t> takeCount() {
    if (low != 0xF) return low;
    const auto marker = takeNumber(1);
    if (!marker || (*marker & ~std::uint64_t{3}) != 0x10) return std::nullopt;
    return takeNumber(std::uint64_t{1} << (*marker & 3));
  }
  // The bytes of so many elements.
  std::optional<std::string_view> takeCounted(std::size_t elementSize) {
    const auto count = takeCount();
    return count && *count <= rest.size() / elementSize ? take(*count * elementSize) : std::nullopt;
  }

  std::optional<PropertyList> takeConstant() const;
  std::optional<PropertyList> takeInteger();
  std::optional<PropertyList> takeReal();
  std::optional<PropertyList> takeDate();

  bool isString() const { return kind == 0x5 || kind == 0x6; }
  std::size_t unitSize() const { return kind == 0x5 ? 1 : 2; }  // of ASCII, of UTF-16
  // The bytes of a string as UTF-8; halves of pairs that stand alone become U+FFFD. Nothing: not ASCII after all.
  std::optional<std::string> text(std::string_view bytes) const;
};

}  // namespace tarvo
