// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "platform/property_list.h"

// Reads a property list from bytes: the XML form (UTF-8, UTF-16 or another encoding that the XML declaration names,
// with or without a byte-order mark) and the binary form "bplist00". Formats: XML 1.0 with the PropertyList-1.0
// document type; the binary form as documented with the formats' public headers. Nothing of a damaged or hostile list
// is taken: depth above 512, entity declarations, references beyond the file, lists that hold themselves, and lists
// that unfold to more than the limits below give no value. Nothing is allocated from a length that the bytes present do
// not back.
namespace tarvo {

constexpr int plistMaximumDepth = 512;
constexpr std::size_t plistMaximumBytes = std::size_t{256} << 20;
constexpr std::size_t plistMaximumObjects = 20'000'000;

std::optional<PropertyList> readPropertyList(std::string_view bytes);

}  // namespace tarvo
