// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/bench/changed_files.h"

#include <sys/stat.h>

#include <filesystem>

namespace tarvo {

FileIdentities fileIdentities(const std::string& folder) {
  FileIdentities found;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
    struct stat status{};
    if (entry.path().parent_path().filename() == "Tarvo Styles") continue;  // names that a former file got
    if (stat(entry.path().c_str(), &status) == 0 && S_ISREG(status.st_mode)) found[entry.path()] = status.st_ino;
  }
  return found;
}

std::vector<std::string> changedFiles(const FileIdentities& before, const FileIdentities& now) {
  std::vector<std::string> changed;
  for (const auto& [path, identity] : now) {
    const auto former = before.find(path);
    if (former == before.end() || former->second != identity) changed.push_back(path);
  }
  return changed;
}

}  // namespace tarvo
