// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <bit>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "platform/plist/plist_reader.h"

// Puts binary property lists together, object by object, sound ones and others.
namespace tarvo::test {

inline std::string bigEndian(std::uint64_t number, std::size_t size) {
  std::string bytes;
  for (std::size_t i = size; i-- > 0;)
    bytes += static_cast<char>(static_cast<unsigned char>(i < 8 ? number >> (8 * i) : 0));
  return bytes;
}

struct BinaryPlist {
  std::vector<std::string> objects;  // the first is the root
  std::size_t offsetSize = 2, referenceSize = 1;
  std::uint64_t root = 0;

  std::string bytes() const {
    std::string content = "bplist00", table;
    for (const std::string& object : objects) {
      table += bigEndian(content.size(), offsetSize);
      content += object;
    }
    return content + table + trailer(objects.size(), content.size());
  }
  std::string trailer(std::uint64_t count, std::uint64_t tableOffset) const {
    return std::string(6, '\0') + bigEndian(offsetSize, 1) + bigEndian(referenceSize, 1) + bigEndian(count, 8) +
           bigEndian(root, 8) + bigEndian(tableOffset, 8);
  }
};

inline std::optional<PropertyList> read(std::vector<std::string> objects) {
  return readPropertyList(BinaryPlist{std::move(objects)}.bytes());
}

inline std::string real(double value) { return "\x23" + bigEndian(std::bit_cast<std::uint64_t>(value), 8); }
inline std::string date(double seconds) { return "\x33" + bigEndian(std::bit_cast<std::uint64_t>(seconds), 8); }

}  // namespace tarvo::test
