// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>

#include "platform/controls/pane.h"
#include "platform/services/geometry.h"

// What there is to know about each pane of the main window.
namespace tarvo {

struct PaneRow {
  Pane pane;
  const char* identifier;  // stored under "ToolbarTag"; the name of the page and of the toolbar's item
  const char* titleKey;    // text of the window's title
  const char* label;       // text key of the toolbar's item; with " Tip" behind it, of its tip
  const char* image;
  Size size;  // in the interface. A shell whose layout needs more answers more (WindowHost::paneSize)
};

inline constexpr std::array<PaneRow, 3> paneRows{
    {{Pane::style, "StyleManager", "TransStyleTab", "StyleManager", "SM32", {780, 620}},
     {Pane::office, "OA", "OfficeAddinTab", "OfficeAddin", "office32", {780, 420}},
     {Pane::mail, "MT", "MailTranslationTab", "MailTranslation", "mail32", {780, 420}}}};

constexpr const PaneRow& rowOf(Pane pane) { return paneRows[static_cast<std::size_t>(pane)]; }

// Nothing for a tag that no pane has.
constexpr std::optional<Pane> paneForTag(int tag) {
  if (tag < 0 || tag >= static_cast<int>(paneRows.size())) return std::nullopt;
  return paneRows[static_cast<std::size_t>(tag)].pane;
}

}  // namespace tarvo
