// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

#include "platform/controls/pane.h"

namespace tarvo {

// The kinds of add-ins: macros of Office programs and scripts of mail programs. Each has a pane with a table.
enum class AddinKind { office, mail };

struct AddinKindRow {
  AddinKind kind;
  int tag;                       // of the table
  Pane pane;                     // that holds the table
  std::string_view word;         // in what the console tool prints for programs
  std::string_view textsPrefix;  // of the keys of the texts about a row
};

// In the order in which both are listed.
inline constexpr std::array<AddinKindRow, 2> addinKindRows{
    {{AddinKind::office, 0, Pane::office, "office", "Office"}, {AddinKind::mail, 1, Pane::mail, "mail", "Mail"}}};

constexpr const AddinKindRow& rowOf(AddinKind kind) { return addinKindRows[static_cast<std::size_t>(kind)]; }

// Nothing for a tag that neither table has.
constexpr std::optional<AddinKind> addinKindForTag(int tag) {
  for (const AddinKindRow& row : addinKindRows) {
    if (row.tag == tag) return row.kind;
  }
  return std::nullopt;
}
// Nothing for a page of the main window without such a table.
constexpr std::optional<AddinKind> addinKindForPage(int page) {
  for (const AddinKindRow& row : addinKindRows) {
    if (tagOf(row.pane) == page) return row.kind;
  }
  return std::nullopt;
}

}  // namespace tarvo
