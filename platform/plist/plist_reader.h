// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <expected>
#include <optional>
#include <string_view>

#include "platform/plist/property_list.h"

// Reads a property list from bytes: the XML form (UTF-8, ISO 8859-1 or US-ASCII as its declaration names it; UTF-8,
// UTF-16 or UTF-32 as its byte-order mark, UTF-16 also as its first characters show) and the binary form "bplist00".
// Formats: XML 1.0 with the PropertyList-1.0 document type, which is never fetched and may be missing, as may the
// <plist> element; the binary form as documented with the format's public headers. Of two entries with one key the
// later counts. A UID of the binary form becomes a dictionary with the one integer "CF$UID"; fractions of seconds and
// lone surrogates, which XML has no place for, become whole seconds and U+FFFD. Nothing of a damaged or hostile list is
// taken: unknown elements, text between elements, numbers beyond 64 bits, depth above the maximum (the root has depth
// 1), entity declarations, references beyond the file, lists that hold themselves, and lists beyond the limits below
// give no value. Nothing is allocated from a length that the bytes present do not back. A binary list may unfold shared
// values to 16 MiB and 64 times its own size, but to no more than plistMaximumUnfoldedBytes.
namespace tarvo {

constexpr int plistMaximumDepth = 512;
constexpr std::size_t plistMaximumBytes = std::size_t{256} << 20;
constexpr std::size_t plistMaximumUnfoldedBytes = std::size_t{512} << 20;
constexpr std::size_t plistMaximumObjects = 8'000'000;

// Where damage of the XML form was met, counted from 1 in characters; 0 where no place is known, as in the binary form
// and in what does not even begin as a list.
struct PlistDamage {
  std::size_t line = 0, column = 0;
  friend bool operator==(const PlistDamage&, const PlistDamage&) = default;
};

std::expected<PropertyList, PlistDamage> parsePropertyList(std::string_view bytes);
// The same for who does not ask for the place.
std::optional<PropertyList> readPropertyList(std::string_view bytes);

}  // namespace tarvo
