// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/beside.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

#include "platform/posix/folders.h"
#include "platform/text/text_rules.h"

namespace tarvo {

Failure unmade(const std::string& path) {
  if (errno == ENOENT) return systemFailure(deletingLastPathComponent(path), Attempt::write);
  return systemFailure(path, Attempt::create);
}

Beside::Beside(std::string path) : path_(std::move(path)), name_(lastPathComponent(path_)) {}

Beside::~Beside() {
  if (folder_ && !temporary_.empty()) removeOwn(folder_.get(), temporary_);
}

Result<> Beside::open() {
  folder_ = openFolder(AT_FDCWD, deletingLastPathComponent(path_));
  if (!folder_) return unmade(path_);
  struct stat status{};
  if (::fstatat(folder_.get(), name_.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0) {
    return Failure{path_, Attempt::create, std::make_error_code(std::errc::file_exists)};
  }
  if (errno != ENOENT) return unmade(path_);
  temporary_ = temporaryName();
  if (temporary_.empty()) return unmade(path_);
  return {};
}

Result<> Beside::place() {
  if (!renameWithoutReplacing(folder_.get(), temporary_, folder_.get(), name_)) return unmade(path_);
  if (syncFolder(folder_.get())) {
    temporary_.clear();
    return {};
  }
  Failure failure = unmade(path_);
  temporary_ = name_;  // a power cut may take it: it goes at once, so that "not done" is true
  return failure;
}

}  // namespace tarvo
