// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

class Texts;
class UserDefaults;

// The product's tools in the order of the tool chooser; operations know them by their places in it.
enum class Tool {
  manager,
  quickTranslation,
  textTranslation,
  readingGuide,
  translationMemory,
  notepad,
  officeAddins,
  mail,
};

struct SiblingTool {
  Tool tool;
  std::string_view key;   // text key of the tool's id in "Selection"
  std::string_view icon;  // image name
};

inline constexpr std::array<SiblingTool, 8> siblingTools{{
    {Tool::manager, "MG", "MG.tif"},
    {Tool::quickTranslation, "QB", "QB.tif"},
    {Tool::textTranslation, "TX", "TX.tif"},
    {Tool::readingGuide, "GD", "GD32.tif"},
    {Tool::translationMemory, "TMA", "TMA.tif"},
    {Tool::notepad, "NP", "NP.tif"},
    {Tool::officeAddins, "ADD", "office32.tif"},
    {Tool::mail, "MAIL", "mail32.tif"},
}};

constexpr const SiblingTool& rowOf(Tool tool) { return siblingTools[static_cast<std::size_t>(tool)]; }
// Nothing for a place without a tool.
constexpr std::optional<Tool> toolForPlace(int place) {
  if (place < 0 || place >= static_cast<int>(siblingTools.size())) return std::nullopt;
  return siblingTools[static_cast<std::size_t>(place)].tool;
}
constexpr int placeOf(Tool tool) { return static_cast<int>(tool); }

// The localized id of a tool, and those of all in their order.
std::string toolId(Tool tool, const Texts& texts);
std::vector<std::string> toolIds(const Texts& texts);
// The tool that was chosen last; the first where none is remembered, or one that is not there.
Tool rememberedTool(const UserDefaults& defaults, const Texts& texts);

}  // namespace tarvo
