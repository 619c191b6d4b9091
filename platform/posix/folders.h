// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services/result.h"
#include "platform/text/paths.h"

// Making, moving and removing folders and what lies in them.
namespace tarvo {

// Creates the folder and the missing ones above it, each on the disk when this returns. Each one made gets mode 0777
// whatever the umask, so that every user of the machine can work in the product's folders; but 0700 at and below
// privateBelow, where that is given. Existing folders are left alone. Done also when it is there.
Result<> makeFolders(const DiskPath& path, const DiskPath& privateBelow = {});
unsigned modeOfNewFolder(const DiskPath& path, const DiskPath& privateBelow);
// The path without links; "" when they cannot be followed, and errno says why.
std::string withoutLinks(const std::string& path);
// What users who are neither the owner nor of the group may do in a folder, as bits of a mode: none where they do not
// get to it or may not search it.
Result<unsigned> modeForOthers(const DiskPath& folder);
// Creates one folder that its owner alone may use; the folder above is there. Fails when anything has the name.
Result<> makePrivateFolder(const DiskPath& path);
// Gives what lies at a path another name on the same disk. Fails when anything has that name; links are not followed.
Result<> moveFile(const DiskPath& from, const DiskPath& to);
// The same between open folders; errno says why not. At no moment has it neither name.
bool renameWithoutReplacing(int fromFolder, const std::string& name, int toFolder, const std::string& newName);
// Removes a file, a link, or a folder with everything in it. Links are never followed. Stops at the first failure.
Result<> removeTree(const DiskPath& path);
// Removes as much as can be of what this process made in an open folder, whatever mode it already has.
void removeOwn(int folder, const std::string& name);

}  // namespace tarvo
