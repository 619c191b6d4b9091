// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tarvo {

class Locations;

// The application bundles that run now: for each process the innermost "….app" folder around its program file, in the
// core's spelling, each once, ascending. Processes that may not be looked at are left out. Source: /proc/<id>/exe.
std::vector<std::string> runningApplications(const Locations& locations);

}  // namespace tarvo
