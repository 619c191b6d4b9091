// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "platform/plist/property_list.h"

// Writes a property list in the XML form, UTF-8, one tab per level, keys ascending: equal values give equal bytes.
// A character that XML 1.0 cannot hold (only a binary list can bring one) becomes U+FFFD; CR becomes "&#13;".
namespace tarvo {

std::string writePropertyList(const PropertyList& value);
// Whether a text comes back as it was: UTF-8 without a character that XML 1.0 cannot hold.
bool canHoldText(std::string_view text);

// The pieces of such a file, for callers that keep parts of it encoded: plistHead, the root value at depth 0,
// plistFoot.
extern const std::string_view plistHead;
extern const std::string_view plistFoot;
// Appends the value as it stands in a file at that depth, with its indentation and the closing line break.
void appendValue(std::string& out, const PropertyList& value, int depth);
void appendKey(std::string& out, std::string_view key, int depth);
// An array of records that are encoded already (each by appendValue at depth + 1).
void appendEncodedArray(std::string& out, std::span<const std::string> encoded, int depth);

}  // namespace tarvo
