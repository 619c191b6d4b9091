// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_reorder.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

bool isPosition(int position, std::size_t count) {
  return std::in_range<std::size_t>(position) && static_cast<std::size_t>(position) < count;
}

}  // namespace

std::optional<std::vector<std::string>> exchanged(std::vector<std::string> names, int first, int second) {
  if (!isPosition(first, names.size()) || !isPosition(second, names.size())) return std::nullopt;
  std::swap(names[static_cast<std::size_t>(first)], names[static_cast<std::size_t>(second)]);
  return names;
}

std::optional<DroppedRows> withRowsDropped(const std::vector<std::string>& names, const std::vector<int>& rows,
                                           int dropRow) {
  const auto inside = [&](int row) { return isPosition(row, names.size()); };
  if (!isPosition(dropRow, names.size() + 1) || !std::all_of(rows.begin(), rows.end(), inside)) return std::nullopt;

  std::vector<std::string> moved;
  std::unordered_set<std::string> movedKeys;
  for (const int row : rows) {
    moved.push_back(names[static_cast<std::size_t>(row)]);
    movedKeys.insert(caseFolded(moved.back()));
  }
  // The drop row counts the moved names too: the list is cut there first, and they leave both halves afterwards.
  DroppedRows result;
  const auto stays = [&](const std::string& name) { return !movedKeys.contains(caseFolded(name)); };
  const auto cut = names.begin() + dropRow;
  std::copy_if(names.begin(), cut, std::back_inserter(result.names), stays);
  result.firstMoved = static_cast<int>(result.names.size());
  result.movedCount = static_cast<int>(moved.size());
  result.names.insert(result.names.end(), moved.begin(), moved.end());
  std::copy_if(cut, names.end(), std::back_inserter(result.names), stays);
  return result;
}

}  // namespace tarvo
