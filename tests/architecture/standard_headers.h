// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

namespace tarvo {

// Whether a header in <...> belongs to the C++ standard library.
bool isStandard(std::string_view name);

}  // namespace tarvo
