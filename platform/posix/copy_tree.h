// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/result.h"
#include "platform/text/paths.h"

// Copies on the disk.
namespace tarvo {

// Copies a file (bytes, permissions, extended attributes), a link (as a link) or a folder with everything in it. Fails
// when anything lies at the target, a dangling link included; when a folder would be copied into itself; and on pipes,
// sockets and devices. A file whose copy fails is removed; files and folders that were finished before it stay.
Result<> copyTree(const DiskPath& from, const DiskPath& to);
// Copies one regular file, following a link at its path, under the same rules.
Result<> copyFile(const DiskPath& from, const DiskPath& to);

}  // namespace tarvo
