// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "platform/plist/property_list.h"

// Which record of one set of styles is which of another.
namespace tarvo {

// For each record of one set its place in the other, or nothing. Each place is given once. Records pair by the same
// name ignoring case, at the same place before elsewhere, and in order where a name occurs more than once; then by the
// same place where neither name occurs in the other set, which is what a rename leaves. "ID" says nothing: each machine
// numbers its own styles.
using Pairing = std::vector<std::optional<std::size_t>>;
Pairing pairRecords(const Array& one, const Array& other);

// The places of the other set, which has that many records, that no record was paired with; ascending.
std::vector<std::size_t> unpairedPlaces(const Pairing& pairing, std::size_t count);

// Lets each tool keep its style, wherever that is now; the tool of a style that is gone takes the first one. places:
// where each style has come to; empty: each is where it was. Without a "Selection" nothing is done.
void moveSelection(Dictionary& root, const std::vector<std::optional<std::size_t>>& places);

}  // namespace tarvo
