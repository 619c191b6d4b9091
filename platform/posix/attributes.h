// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

// Extended attributes of files (names such as "user.com.apple.FinderInfo"). Disks may refuse them: every operation then
// answers nothing or false.
namespace tarvo {

std::optional<std::string> attribute(const std::string& path, const char* name);
bool setAttribute(const std::string& path, const char* name, std::string_view value);
// Copies all that can be copied from one open file to another; what the system refuses is left out.
void copyAttributes(int from, int to);

}  // namespace tarvo
