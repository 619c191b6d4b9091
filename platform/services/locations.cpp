// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/locations.h"

#include <utility>

#include "platform/services/file_service.h"

namespace tarvo {
namespace {

std::string asFolder(std::string path) {
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path.empty() ? "/" : path;
}

// What follows a folder in a path below it: "" or "/…".
std::string restBelow(const DiskPath& path, const DiskPath& folder) {
  return folder.text() == "/" ? path.text() : path.text().substr(folder.text().size());
}

}  // namespace

Locations::Locations(std::string root, std::string home)
    : root_(asFolder(std::move(root))), home_(asFolder(std::move(home))) {}

DiskPath Locations::onDisk(const ProductPath& path) const {
  DiskPath same(path.text());
  if (root_.text() == "/" || !isAbsolutePath(path.text()) || same.isIn(root_)) return same;
  if (home_.text() != "/" && same.isIn(home_)) return same;
  return path.text() == "/" ? root_ : root_ + path.text();
}

ProductPath Locations::inProduct(const DiskPath& path) const {
  if (root_.text() == "/" || !path.isIn(root_)) return ProductPath(path.text());
  const std::string rest = restBelow(path, root_);
  return ProductPath(rest.empty() ? "/" : rest);
}

std::string Locations::shown(const DiskPath& path) const {
  const auto tagged = [&path](const char* tag, const DiskPath& folder) {
    const std::string rest = restBelow(path, folder);
    return std::string(tag) + (rest.empty() ? "/" : rest);
  };
  if (home_.text() != "/" && path.isIn(home_)) return tagged("home:", home_);
  if (root_.text() != "/" && path.isIn(root_)) return tagged("root:", root_);
  return path.text();
}

DiskPath storedPath(const std::string& text, const Locations& locations, const FileService& files) {
  DiskPath below = locations.onDisk(ProductPath(text));
  const DiskPath itself(text);
  return files.isAbsent(below) && !files.isAbsent(itself) ? itself : below;
}

}  // namespace tarvo
