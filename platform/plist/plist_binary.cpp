// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_binary.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "platform/plist/plist_numbers.h"
#include "platform/plist/plist_reader.h"
#include "platform/text/utf8.h"

namespace tarvo {
namespace {

constexpr std::size_t markSize = 8, trailerSize = 32;

std::uint64_t bigEndian(std::string_view bytes) {
  std::uint64_t number = 0;
  for (const char byte : bytes) number = (number << 8) | static_cast<unsigned char>(byte);
  return number;
}

bool fitsInteger(std::uint64_t size) { return size >= 1 && size <= 8; }

// Sixteen bytes hold what is above int64, or below zero; what needs more than 64 bits is refused.
std::optional<Integer> integerFromSixteenBytes(std::string_view bytes) {
  const std::uint64_t high = bigEndian(bytes.substr(0, 8)), low = bigEndian(bytes.substr(8));
  if (high == 0) return Integer{low, false};
  if (high == ~std::uint64_t{0} && low != 0) return Integer{~low + 1, true};
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

// Values may be shared in the file but not in memory, so that a few bytes can stand for a list without end. All that is
// made is charged here first.
class Budget {
 public:
  explicit Budget(std::size_t fileSize)
      : left_(std::min(plistMaximumUnfoldedBytes, (std::size_t{16} << 20) + 64 * fileSize)) {}
  bool take(std::size_t bytes) {
    if (bytes > left_) return false;
    left_ -= bytes;
    return true;
  }

 private:
  std::size_t left_;
};

class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes), budget_(bytes.size()) {}

  std::optional<PropertyList> root() {
    if (bytes_.size() < markSize + trailerSize) return std::nullopt;
    const std::string_view trailer = bytes_.substr(bytes_.size() - trailerSize);
    const auto number = [trailer](std::size_t at, std::size_t size) { return bigEndian(trailer.substr(at, size)); };
    offsetSize_ = number(6, 1);
    referenceSize_ = number(7, 1);
    objects_ = number(8, 8);
    const std::uint64_t top = number(16, 8), table = number(24, 8), end = bytes_.size() - trailerSize;
    if (!fitsInteger(offsetSize_) || !fitsInteger(referenceSize_) || table < markSize || table > end)
      return std::nullopt;
    if (objects_ > (end - table) / offsetSize_) return std::nullopt;
    table_ = bytes_.substr(table, objects_ * offsetSize_);
    bytes_ = bytes_.substr(0, table);
    return value(top, 1);
  }

 private:
  // The rest of one object, taken piece by piece.
  struct Object {
    std::string_view rest;
    unsigned kind, low;  // the two halves of its first byte

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
  };

  std::optional<Object> object(std::uint64_t reference) const {
    if (reference >= objects_) return std::nullopt;
    const std::uint64_t offset = bigEndian(table_.substr(reference * offsetSize_, offsetSize_));
    if (offset < markSize || offset >= bytes_.size()) return std::nullopt;
    const unsigned marker = static_cast<unsigned char>(bytes_[offset]);
    return Object{bytes_.substr(offset + 1), marker >> 4, marker & 0xF};
  }

  std::optional<PropertyList> value(std::uint64_t reference, int depth) {
    std::optional<Object> found = object(reference);
    if (!found || depth > plistMaximumDepth || !budget_.take(sizeof(PropertyList))) return std::nullopt;
    switch (found->kind) {
      case 0x0: return constant(found->low);
      case 0x1: return integer(*found);
      case 0x2: return real(*found);
      case 0x3: return date(*found);
      case 0x4: return data(*found);
      case 0x5:
      case 0x6: return valueOf(string(*found));
      case 0x8: return uid(*found, depth);
      case 0xA: return array(*found, depth);
      case 0xD: return dictionary(*found, depth);
      default: return std::nullopt;
    }
  }

  template <class T>
  static std::optional<PropertyList> valueOf(std::optional<T> content) {
    return content ? std::optional<PropertyList>(std::move(*content)) : std::nullopt;
  }

  static std::optional<PropertyList> constant(unsigned low) {
    constexpr unsigned no = 8, yes = 9;
    if (low != no && low != yes) return std::nullopt;
    return PropertyList(low == yes);
  }

  // One, two and four bytes have no sign.
  static std::optional<PropertyList> integer(Object& object) {
    constexpr unsigned eightBytes = 3, sixteenBytes = 4;
    if (object.low > sixteenBytes) return std::nullopt;
    const auto bytes = object.take(std::uint64_t{1} << object.low);
    if (!bytes) return std::nullopt;
    if (object.low == sixteenBytes) return valueOf(integerFromSixteenBytes(*bytes));
    const std::uint64_t bits = bigEndian(*bytes);
    return PropertyList(object.low == eightBytes ? integerFromBits(bits) : Integer{bits, false});
  }

  static std::optional<PropertyList> real(Object& object) {
    constexpr unsigned fourBytes = 2, eightBytes = 3;
    if (object.low != fourBytes && object.low != eightBytes) return std::nullopt;
    const auto bits = object.takeNumber(std::uint64_t{1} << object.low);
    if (!bits) return std::nullopt;
    const double number = object.low == eightBytes
                              ? std::bit_cast<double>(*bits)
                              : static_cast<double>(std::bit_cast<float>(static_cast<std::uint32_t>(*bits)));
    return PropertyList(Real{textFromReal(number)});
  }

  static std::optional<PropertyList> date(Object& object) {
    constexpr unsigned eightBytes = 3;
    const auto bits = object.low == eightBytes ? object.takeNumber(8) : std::nullopt;
    auto text = bits ? textFromDate(std::bit_cast<double>(*bits)) : std::nullopt;
    if (!text) return std::nullopt;
    return PropertyList(Date{std::move(*text)});
  }

  std::optional<PropertyList> data(Object& object) {
    const auto bytes = object.takeCounted(1);
    if (!bytes || !budget_.take(bytes->size())) return std::nullopt;
    const auto* first = reinterpret_cast<const std::byte*>(bytes->data());
    return PropertyList(Data(first, first + bytes->size()));
  }

  // Of ASCII or of UTF-16 units.
  std::optional<std::string> string(Object& object) {
    const bool isAscii = object.kind == 0x5;
    const auto bytes = object.takeCounted(isAscii ? 1 : 2);
    if (!bytes || !budget_.take(bytes->size() * (isAscii ? 1 : 2))) return std::nullopt;
    if (!isAscii) return utf8FromUnits(*bytes);
    const bool isClean = std::all_of(bytes->begin(), bytes->end(), [](char c) { return (c & 0x80) == 0; });
    return isClean ? std::optional<std::string>(*bytes) : std::nullopt;
  }

  std::optional<PropertyList> uid(Object& object, int depth) {
    const auto number = object.low < 8 ? object.takeNumber(object.low + 1) : std::nullopt;
    if (!number || depth == plistMaximumDepth || !budget_.take(sizeof(Dictionary::Entry))) return std::nullopt;
    Dictionary dictionary;
    dictionary.set("CF$UID", Integer{*number, false});
    return PropertyList(std::move(dictionary));
  }

  std::uint64_t reference(std::string_view references, std::size_t index) const {
    return bigEndian(references.substr(index * referenceSize_, referenceSize_));
  }

  std::optional<PropertyList> array(Object& object, int depth) {
    const auto references = object.takeCounted(referenceSize_);
    if (!references) return std::nullopt;
    const std::size_t count = references->size() / referenceSize_;
    if (!budget_.take(count * sizeof(PropertyList))) return std::nullopt;
    Array items;
    items.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
      std::optional<PropertyList> item = value(reference(*references, i), depth + 1);
      if (!item) return std::nullopt;
      items.push_back(std::move(*item));
    }
    return PropertyList(std::move(items));
  }

  std::optional<std::string> key(std::uint64_t reference) {
    std::optional<Object> found = object(reference);
    return found && (found->kind == 0x5 || found->kind == 0x6) ? string(*found) : std::nullopt;
  }

  // All keys stand before all values.
  std::optional<PropertyList> dictionary(Object& object, int depth) {
    const auto references = object.takeCounted(2 * referenceSize_);
    if (!references) return std::nullopt;
    const std::size_t count = references->size() / referenceSize_ / 2;
    if (!budget_.take(count * sizeof(Dictionary::Entry))) return std::nullopt;
    std::vector<Dictionary::Entry> entries;
    entries.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
      std::optional<std::string> name = key(reference(*references, i));
      std::optional<PropertyList> item = name ? value(reference(*references, count + i), depth + 1) : std::nullopt;
      if (!item) return std::nullopt;
      entries.emplace_back(std::move(*name), std::move(*item));
    }
    return PropertyList(Dictionary::fromEntries(std::move(entries)));
  }

  std::string_view bytes_, table_;
  std::uint64_t offsetSize_ = 0, referenceSize_ = 0, objects_ = 0;
  Budget budget_;
};

}  // namespace

std::optional<PropertyList> readBinaryPropertyList(std::string_view bytes) { return Reader(bytes).root(); }

}  // namespace tarvo
