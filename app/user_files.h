// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text/paths.h"
#include "style/own_files.h"

namespace tarvo {

class FileService;
class Locations;
class ProductPaths;

// Where the settings, the lock and the tool list of a user lie.
DiskPath userDefaultsPath(const Locations& locations);
DiskPath lockPath(const Locations& locations);
// The lock's path too; its folder is there now, made as all of the user's folders are, where that can be.
DiskPath placeForLock(FileService& files, const Locations& locations);
DiskPath toolListPath(const Locations& locations);
// All of them, with the styles, the earlier ones and those of the local style service.
OwnFiles ownFilesOf(const FileService& files, const Locations& locations, const ProductPaths& paths);

}  // namespace tarvo
