// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace tarvo {

constexpr std::size_t contentHashSize = 64;  // characters

// SHA-256 (FIPS 180-4) of the bytes, in lower-case hexadecimal.
std::string contentHash(std::string_view bytes);

}  // namespace tarvo
