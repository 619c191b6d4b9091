// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/user_files.h"

#include "install/mail_script_installer.h"
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

DiskPath toolListPath(const Locations& locations) {
  return locations.inHome("Library/Preferences/Wordhaven/TarvoManager.txt");
}

std::vector<DiskPath> userFolders(const Locations& locations, const ProductPaths& paths) {
  std::vector<DiskPath> folders{lockPath(locations).folder(),
                                locations.inHome(gStylePath).folder(),
                                locations.inHome(gEarlierStyles),
                                paths.localEnginePath().folder(),
                                locations.onDisk(paths.preferencesWordhavenCache()),
                                paths.tarvoPathUserDicFolderURL(),
                                paths.tarvoPathUserTmaFolderURL()};
  for (const char* folder : mailScriptFolders) folders.push_back(locations.inHome(folder));
  return folders;
}

UserPlace userPlace(FileService& files, const Locations& locations, const ProductPaths& paths) {
  UserPlace place{lockPath(locations), locations.home(), userFolders(locations, paths)};
  const Result<> made = files.makeFolder(place.lock.folder());
  (void)made;  // whoever takes the lock finds that there is none to be had
  return place;
}

OwnFiles ownFilesOf(const FileService& files, const Locations& locations, const ProductPaths& paths) {
  return {files,
          {locations.inHome(gStylePath), userDefaultsPath(locations), lockPath(locations), toolListPath(locations),
           paths.localEnginePath()},
          locations.inHome(gEarlierStyles)};
}

}  // namespace tarvo
