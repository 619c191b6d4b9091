// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarvo {

// 128 bits that tell bytes apart, in 32 lower-case hexadecimal digits (XXH3). It costs some ten microseconds a megabyte
// and holds against accidents, not against somebody who forges.
std::string fingerprint(std::string_view bytes);

}  // namespace tarvo
