// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/own_files.h"

#include <algorithm>
#include <utility>

#include "platform/services/file_service.h"

namespace tarvo {

namespace {

bool isSame(const FileService& service, const DiskPath& one, const DiskPath& other) {
  const Result<FileStamp> first = service.stamp(one), second = service.stamp(other);
  return one == other || (first && second && first->device == second->device && first->inode == second->inode);
}

}  // namespace

OwnFiles::OwnFiles(const FileService& service, std::vector<DiskPath> files, DiskPath folder)
    : service_(service), files_(std::move(files)), folder_(std::move(folder)) {}

// Also one that is not there yet, by its name in the folder that the path leads to.
bool OwnFiles::isOwn(const DiskPath& path) const {
  if (isSame(service_, path.folder(), folder_)) return true;
  const auto isIt = [&](const DiskPath& own) {
    return isSame(service_, path, own) || (path.name() == own.name() && isSame(service_, path.folder(), own.folder()));
  };
  if (std::ranges::any_of(files_, isIt)) return true;
  if (service_.ownKind(path) != FileService::Kind::link) return false;
  const Result<std::vector<std::string>> names = service_.list(folder_);
  return names &&
         std::ranges::any_of(*names, [&](const std::string& name) { return isSame(service_, path, folder_ / name); });
}

Result<> OwnFiles::checkOther(const DiskPath& path) const {
  if (isOwn(path)) return Failure{path.text(), Attempt::write, Reason::ownFile};
  return {};
}

}  // namespace tarvo
