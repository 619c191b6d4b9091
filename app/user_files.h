// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo {

class Locations;

// Where the settings, the lock and the tool list of a user lie, in the core's spelling.
std::string userDefaultsPath(const Locations& locations);
std::string lockPath(const Locations& locations);
std::string toolListPath(const Locations& locations);

}  // namespace tarvo
