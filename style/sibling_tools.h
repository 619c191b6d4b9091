// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

// The product's tools in the order of the tool chooser. The index is the same in the chooser, in callers' requests and
// here.
namespace tarvo {

class Texts;

struct SiblingTool {
  std::string_view key;   // text key of the tool's id in "Selection"
  std::string_view icon;  // image name
};

inline constexpr std::array<SiblingTool, 8> siblingTools{{{"MG", "MG.tif"},
                                                          {"QB", "QB.tif"},
                                                          {"TX", "TX.tif"},
                                                          {"GD", "GD32.tif"},
                                                          {"TMA", "TMA.tif"},
                                                          {"NP", "NP.tif"},
                                                          {"ADD", "office32.tif"},
                                                          {"MAIL", "mail32.tif"}}};

// The localized ids, by tool index.
std::vector<std::string> toolIds(const Texts& texts);

}  // namespace tarvo
