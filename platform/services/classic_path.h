// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarvo {

// The volume-qualified, colon-separated form of a path, which the installed macros read. "/Volumes/N/rest" gives
// "N:rest", any other absolute path the boot volume's name and its components, "/" gives "Volume:"; a relative path
// gives ":" and its components. A ":" inside a component becomes "/"; repeated and trailing slashes vanish; "." and
// ".." stay; nothing is looked up on the disk.
std::string classicPath(std::string_view path, std::string_view bootVolume);

}  // namespace tarvo
