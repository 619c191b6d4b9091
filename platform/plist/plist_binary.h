// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>

#include "platform/plist/property_list.h"

// The binary form of property lists; for plist_reader only, whose header states what is taken and what is not.
// A file is the mark "bplist00", the objects, a table of their offsets, and a trailer of 32 bytes that tells the sizes
// of offsets and references, the number of objects, the root and where the table begins. All numbers are big-endian.
namespace tarvo {

std::optional<PropertyList> readBinaryPropertyList(std::string_view bytes);

}  // namespace tarvo
