// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Base64 with the usual alphabet and padding (RFC 4648, section 4).
namespace tarvo {

void appendBase64(std::string& out, std::span<const std::byte> bytes);
// White space may stand anywhere. Otherwise strict: nothing for other characters, missing padding, anything behind it,
// or bits left over.
std::optional<std::vector<std::byte>> bytesFromBase64(std::string_view text);

}  // namespace tarvo
