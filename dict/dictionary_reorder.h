// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

// Moves within a list of dictionary names, without any list model. Names are compared ignoring case.
namespace tarvo {

// The list with two names exchanged. Nothing when a position lies outside the list.
std::optional<std::vector<std::string>> exchanged(std::vector<std::string> names, int first, int second);

struct DroppedRows {
  std::vector<std::string> names;
  int firstMoved = 0;  // position of the first moved name; the others follow it
  int movedCount = 0;
};
// The list after its given rows were dropped, in the given order, before the row that stands at dropRow (the count: at
// the end). Nothing when a row or dropRow lies outside the list.
std::optional<DroppedRows> withRowsDropped(const std::vector<std::string>& names, const std::vector<int>& rows,
                                           int dropRow);

}  // namespace tarvo
