// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo {

class FileService;

// Makes each missing level of a relative path below a base folder, with mode 0777. Anything that is there counts as
// present, even a plain file. False: a level could not be made.
bool createDirectoryFromPath(FileService& files, const std::string& relativePath, const std::string& parentPath);

}  // namespace tarvo
