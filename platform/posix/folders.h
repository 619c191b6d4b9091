// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/result.h"
#include "platform/text/paths.h"

// Making and removing folders.
namespace tarvo {

// Creates the folder and the missing ones above it; each one made gets mode 0777 whatever the umask, so that every user
// of the machine can work in the product's folders. Existing folders are left alone. Done also when it is there.
Result<> makeFolders(const DiskPath& path);
// Creates one folder that its owner alone may use; the folder above is there. Fails when anything has the name.
Result<> makePrivateFolder(const DiskPath& path);
// Gives what lies at a path another name on the same disk. Fails when anything has that name; links are not followed.
Result<> moveFile(const DiskPath& from, const DiskPath& to);
// Removes a file, a link, or a folder with everything in it. Links are never followed. Stops at the first failure.
Result<> removeTree(const DiskPath& path);

}  // namespace tarvo
