// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/text/paths.h"

namespace tarvo {

class Locations;

// The application bundles that run now: for each process the innermost "….app" folder around its program file, each
// once, ascending. Processes that may not be looked at are left out. Source: /proc/<id>/exe.
std::vector<ProductPath> runningApplications(const Locations& locations);

}  // namespace tarvo
