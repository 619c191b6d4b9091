// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_binary.h"

#include <algorithm>
#include <utility>

#include "platform/plist/plist_binary_object.h"
#include "platform/plist/plist_reader.h"

namespace tarvo {
namespace {

constexpr std::size_t markSize = 8, trailerSize = 32;

bool fitsInteger(std::uint64_t size) { return size >= 1 && size <= 8; }

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
  std::optional<BinaryObject> object(std::uint64_t reference) const {
    if (reference >= objects_) return std::nullopt;
    const std::uint64_t offset = bigEndian(table_.substr(reference * offsetSize_, offsetSize_));
    if (offset < markSize || offset >= bytes_.size()) return std::nullopt;
    const unsigned marker = static_cast<unsigned char>(bytes_[offset]);
    return BinaryObject{bytes_.substr(offset + 1), marker >> 4, marker & 0xF};
  }

  std::optional<PropertyList> value(std::uint64_t reference, int depth) {
    std::optional<BinaryObject> found = object(reference);
    if (!found || depth > plistMaximumDepth || !budget_.take(sizeof(PropertyList))) return std::nullopt;
    switch (found->kind) {
      case 0x0: return found->takeConstant();
      case 0x1: return found->takeInteger();
      case 0x2: return found->takeReal();
      case 0x3: return found->takeDate();
      case 0x4: return data(*found);
      case 0x5:
      case 0x6: return string(*found);
      case 0x8: return uid(*found, depth);
      case 0xA: return array(*found, depth);
      case 0xD: return dictionary(*found, depth);
      default: return std::nullopt;
    }
  }

  std::optional<PropertyList> data(BinaryObject& object) {
    const auto bytes = object.takeCounted(1);
    if (!bytes || !budget_.take(bytes->size())) return std::nullopt;
    const auto* first = reinterpret_cast<const std::byte*>(bytes->data());
    return PropertyList(Data(first, first + bytes->size()));
  }

  std::optional<std::string> string(BinaryObject& object) {
    const auto bytes = object.takeCounted(object.unitSize());
    if (!bytes || !budget_.take(bytes->size() * object.unitSize())) return std::nullopt;
    return object.text(*bytes);
  }

  std::optional<PropertyList> uid(BinaryObject& object, int depth) {
    const auto number = object.low < 8 ? object.takeNumber(object.low + 1) : std::nullopt;
    if (!number || depth == plistMaximumDepth || !budget_.take(sizeof(Dictionary::Entry))) return std::nullopt;
    Dictionary dictionary;
    dictionary.set("CF$UID", Integer{*number, false});
    return PropertyList(std::move(dictionary));
  }

  std::uint64_t reference(std::string_view references, std::size_t index) const {
    return bigEndian(references.substr(index * referenceSize_, referenceSize_));
  }

  std::optional<PropertyList> array(BinaryObject& object, int depth) {
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
    std::optional<BinaryObject> found = object(reference);
    return found && found->isString() ? string(*found) : std::nullopt;
  }

  // All keys stand before all values.
  std::optional<PropertyList> dictionary(BinaryObject& object, int depth) {
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
