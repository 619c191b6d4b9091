// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/base64.h"

#include <array>
#include <cstdint>

namespace tarvo {
namespace {

constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t noDigit = 0xFF;

constexpr std::array<std::uint8_t, 256> digits = [] {
  std::array<std::uint8_t, 256> table{};
  table.fill(noDigit);
  for (std::size_t i = 0; i < alphabet.size(); ++i) {
    table[static_cast<unsigned char>(alphabet[i])] = static_cast<std::uint8_t>(i);
  }
  return table;
}();

bool isSpace(char c) { return c == ' ' || c == '\n' || c == '\t' || c == '\r'; }

// Four digits hold the 24 bits of three bytes.
void appendGroup(std::string& out, std::span<const std::byte> bytes) {
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < 3; ++i)
    bits = (bits << 8) | (i < bytes.size() ? std::to_integer<std::uint32_t>(bytes[i]) : 0);
  for (std::size_t i = 0; i < 4; ++i) out += i <= bytes.size() ? alphabet[(bits >> (18 - 6 * i)) & 63] : '=';
}

}  // namespace

void appendBase64(std::string& out, std::span<const std::byte> bytes) {
  while (!bytes.empty()) {
    const auto group = bytes.first(bytes.size() < 3 ? bytes.size() : 3);
    appendGroup(out, group);
    bytes = bytes.subspan(group.size());
  }
}

std::optional<std::vector<std::byte>> bytesFromBase64(std::string_view text) {
  std::vector<std::byte> bytes;
  bytes.reserve(text.size() / 4 * 3);
  std::uint32_t bits = 0;
  unsigned held = 0;  // bits not yet taken
  std::size_t count = 0, padding = 0;
  for (const char c : text) {
    if (isSpace(c)) continue;
    ++count;
    if (c == '=') {
      ++padding;
      continue;
    }
    const std::uint8_t digit = digits[static_cast<unsigned char>(c)];
    if (digit == noDigit || padding != 0) return std::nullopt;
    bits = (bits << 6) | digit;
    held += 6;
    if (held < 8) continue;
    held -= 8;
    bytes.push_back(static_cast<std::byte>(bits >> held));
    bits &= (1u << held) - 1;
  }
  if (count % 4 != 0 || padding > 2 || padding * 2 != held || bits != 0) return std::nullopt;
  return bytes;
}

}  // namespace tarvo
