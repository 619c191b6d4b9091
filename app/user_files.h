// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/text/paths.h"
#include "style/own_files.h"

namespace tarvo {

class FileService;
class Locations;
class ProductPaths;

// Where the settings, the lock and the tool list of a user lie.
DiskPath userDefaultsPath(const Locations& locations);
DiskPath lockPath(const Locations& locations);
DiskPath toolListPath(const Locations& locations);

// The folders in which the product writes what is the user's, those of mail programs too. Some may lie outside the
// home.
std::vector<DiskPath> userFolders(const Locations& locations, const ProductPaths& paths);

// What the lock of a user's files guards.
struct UserPlace {
  DiskPath lock, home;
  std::vector<DiskPath> folders;  // userFolders
};
// The folder of the lock is there now, made as all of the user's folders are, where that can be.
UserPlace userPlace(FileService& files, const Locations& locations, const ProductPaths& paths);

// All of them, with the styles, the earlier ones and those of the local style service.
OwnFiles ownFilesOf(const FileService& files, const Locations& locations, const ProductPaths& paths);

}  // namespace tarvo
