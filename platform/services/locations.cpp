// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/locations.h"

#include <algorithm>
#include <utility>

#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

std::string asFolder(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path.empty() ? "/" : path;
}

// What follows a folder in a path below it: "" or "/…".
std::string restBelow(const std::string& path, const std::string& folder) {
  return folder == "/" ? path : path.substr(folder.size());
}

}  // namespace

Locations::Locations(std::string root, std::string home) : root_(asFolder(std::move(root))) {
  home = asFolder(std::move(home));
  home_ = coreSpelling(home);
  if (!isBelow(home, root_)) leaveAsIs(home);
}

std::string Locations::inHome(const std::string& rest) const { return joinPath(home_, rest); }

std::string Locations::resolve(const std::string& path) const {
  const auto holds = [&path](const std::string& folder) { return isBelow(path, folder); };
  if (root_ == "/" || !isAbsolutePath(path) || holds(root_)) return path;
  if (std::any_of(asTheyAre_.begin(), asTheyAre_.end(), holds)) return path;
  return path == "/" ? root_ : root_ + path;
}

std::string Locations::coreSpelling(const std::string& path) const {
  if (root_ == "/" || !isBelow(path, root_)) return path;
  const std::string rest = restBelow(path, root_);
  return rest.empty() ? "/" : rest;
}

void Locations::leaveAsIs(const std::string& path) {
  const std::string folder = asFolder(path);
  const auto holds = [&folder](const std::string& known) { return isBelow(folder, known); };
  if (folder == "/" || std::any_of(asTheyAre_.begin(), asTheyAre_.end(), holds)) return;
  asTheyAre_.push_back(folder);
}

std::string Locations::picked(const std::string& path) {
  if (!isBelow(path, root_)) leaveAsIs(path);
  return coreSpelling(path);
}

std::string Locations::shown(const std::string& path) const {
  std::string real = resolve(path);
  const auto tagged = [&real](const char* tag, const std::string& folder) {
    const std::string rest = restBelow(real, folder);
    return std::string(tag) + (rest.empty() ? "/" : rest);
  };
  const std::string home = resolve(home_);
  if (isBelow(real, home)) return tagged("home:", home);
  if (root_ != "/" && isBelow(real, root_)) return tagged("root:", root_);
  return real;
}

}  // namespace tarvo
