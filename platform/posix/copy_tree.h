// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services/result.h"

// Copies on the disk. Real absolute paths without a trailing slash.
namespace tarvo {

// Copies a file (bytes, permissions, extended attributes), a link (as a link) or a folder with everything in it. Fails
// when anything lies at the target, a dangling link included; when a folder would be copied into itself; and on pipes,
// sockets and devices. A file whose copy fails is removed; files and folders that were finished before it stay.
Result<> copyTree(const std::string& from, const std::string& to);
// Copies one regular file, following a link at its path, under the same rules.
Result<> copyFile(const std::string& from, const std::string& to);

}  // namespace tarvo
