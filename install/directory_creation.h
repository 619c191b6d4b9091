// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services/result.h"
#include "platform/text/paths.h"

namespace tarvo {

class FileService;

// Makes each missing level of a relative path below a base folder, with mode 0777. Anything that is there counts as
// present, even a plain file. Stops at the first level that cannot be made.
Result<> createDirectoryFromPath(FileService& files, const std::string& relativePath, const DiskPath& parentPath);

}  // namespace tarvo
