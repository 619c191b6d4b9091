// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "platform/services/file_service.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// Copies on the disk. Each is built beside its place and takes its name when its bytes, attributes and modes are on the
// disk (beside.h): a copy that fails, or is cut off by a crash, leaves nothing under that name.
namespace tarvo {

// Copies a file (bytes, permissions, extended attributes), a link (as a link) or a folder with everything in it. Fails
// when anything lies at the target, a dangling link included; when a folder would be copied into itself; and on pipes,
// sockets and devices. codes: what the copy of a file bears, where the disk keeps codes, instead of the file's own.
Result<> copyTree(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes = {});
// Copies one regular file, following a link at its path, under the same rules.
Result<> copyFile(const DiskPath& from, const DiskPath& to);
// Makes a new folder of that mode with copies of the items, under the same rules; the folder above is there. What
// cannot be copied ends the row: the folder stands there with the copies before it, and the failure is told.
Result<> copyIntoNewFolder(const std::vector<DiskPath>& items, const DiskPath& folder, unsigned mode);

}  // namespace tarvo
