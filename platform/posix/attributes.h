// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/services/result.h"
#include "platform/text/paths.h"

// Extended attributes of files (names such as "user.com.apple.FinderInfo"). Disks may refuse them.
namespace tarvo {

// "" when there is none, also on a disk that keeps none.
Result<std::string> attribute(const DiskPath& path, const char* name);
Result<> setAttribute(const DiskPath& path, const char* name, std::string_view value);
// The same of an open file; "" also where the system tells nothing.
std::string attributeOf(int file, const char* name);
bool giveAttribute(int file, const char* name, std::string_view value);  // false: errno says why not
// Copies all that can be copied from one open file to another; what the system refuses is left out.
void copyAttributes(int from, int to);

}  // namespace tarvo
