// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/user_files.h"

#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/product_paths.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {
constexpr const char* identifier = "com.wordhaven.TarvoManager";
}

DiskPath userDefaultsPath(const Locations& locations) {
  return locations.inHome(std::string("Library/Preferences/") + identifier + ".plist");
}

DiskPath lockPath(const Locations& locations) {
  return locations.inHome(std::string("Library/Preferences/") + identifier + ".lock");
}

DiskPath placeForLock(FileService& files, const Locations& locations) {
  DiskPath path = lockPath(locations);
  const Result<> made = files.makeFolder(path.folder());
  (void)made;  // whoever takes the lock finds that there is none to be had
  return path;
}

DiskPath toolListPath(const Locations& locations) {
  return locations.inHome("Library/Preferences/Wordhaven/TarvoManager.txt");
}

OwnFiles ownFilesOf(const FileService& files, const Locations& locations, const ProductPaths& paths) {
  return {files,
          {locations.inHome(gStylePath), userDefaultsPath(locations), lockPath(locations), toolListPath(locations),
           paths.localEnginePath()},
          locations.inHome(gEarlierStyles)};
}

}  // namespace tarvo
