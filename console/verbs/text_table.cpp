// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/text_table.h"

#include <algorithm>

#include "platform/text/printable.h"
#include "platform/text/utf8.h"

namespace tarvo {

namespace {

// The blocks that terminals draw two places wide. Source: the Unicode character database, East_Asian_Width.
bool isWide(char32_t c) {
  return (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xAC00 && c <= 0xD7A3) ||
         (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFE30 && c <= 0xFE6F) || (c >= 0xFF00 && c <= 0xFF60) ||
         (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x1F300 && c <= 0x1FAFF) || (c >= 0x20000 && c <= 0x3FFFD);
}

std::size_t places(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size();) count += isWide(nextCodePoint(text, at)) ? 2U : 1U;
  return count;
}

}  // namespace

void writeTable(std::ostream& out, std::vector<std::vector<std::string>> rows) {
  std::vector<std::size_t> widths;
  for (auto& row : rows) std::ranges::transform(row, row.begin(), printable);
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], places(row[i]));
  }
  for (const auto& row : rows) {
    std::string line;
    for (std::size_t i = 0; i < row.size(); ++i) line += row[i] + std::string(widths[i] - places(row[i]) + 2, ' ');
    line.erase(line.find_last_not_of(' ') + 1);
    out << line << '\n';
  }
}

}  // namespace tarvo
