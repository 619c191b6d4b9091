// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services/result.h"

// Making and removing folders. Real absolute paths without a trailing slash.
namespace tarvo {

// Creates the folder and the missing ones above it; each one made gets mode 0777 whatever the umask, so that every user
// of the machine can work in the product's folders. Existing folders are left alone. Done also when it is there.
Result<> makeFolders(const std::string& path);
// Removes a file, a link, or a folder with everything in it. Links are never followed. Stops at the first failure.
Result<> removeTree(const std::string& path);

}  // namespace tarvo
