// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/posix_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

#include "platform/posix/copy_tree.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/finder_info.h"
#include "platform/posix/folders.h"
#include "platform/posix/keep_unreadable.h"
#include "platform/posix/replace_file.h"
#include "platform/services/locations.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

// No file that the program reads comes near it.
constexpr std::size_t maximumFileSize = std::size_t{1} << 30;

}  // namespace

PosixFiles::PosixFiles(const Locations& locations) : locations_(locations) {}

std::optional<std::string> PosixFiles::real(const std::string& path) const {
  // The system would cut a path at a zero byte and so name another file.
  if (!isAbsolutePath(path) || path.find('\0') != std::string::npos) return std::nullopt;
  std::string real = locations_.resolve(path);
  while (real.size() > 1 && real.ends_with('/')) real.pop_back();
  return real;
}

FileService::Kind PosixFiles::kind(const std::string& path) const {
  const auto name = real(path);
  struct stat status{};
  if (!name || ::stat(name->c_str(), &status) != 0) return Kind::absent;
  if (S_ISREG(status.st_mode)) return Kind::file;
  return S_ISDIR(status.st_mode) ? Kind::folder : Kind::other;
}

bool PosixFiles::isLink(const std::string& path) const {
  const auto name = real(path);
  struct stat status{};
  return name && ::lstat(name->c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

bool PosixFiles::isWritable(const std::string& folder) const {
  const auto name = real(folder);
  return name && ::access(name->c_str(), W_OK | X_OK) == 0;
}

std::optional<std::string> PosixFiles::read(const std::string& path) const {
  const auto name = real(path);
  if (!name) return std::nullopt;
  // Non-blocking: opening a pipe for reading would wait for a writer.
  const Descriptor file(::open(name->c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  struct stat status{};
  if (!file || ::fstat(file.get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  return readAll(file.get(), static_cast<std::size_t>(status.st_size), maximumFileSize);
}

bool PosixFiles::write(const std::string& path, std::string_view bytes) {
  const auto name = real(path);
  return name && !path.ends_with('/') && replaceFile(*name, bytes);
}

bool PosixFiles::keepUnreadable(const std::string& path) {
  const auto name = real(path);
  return name && keepUnreadableFile(*name);
}

std::optional<std::vector<std::string>> PosixFiles::list(const std::string& folder) const {
  const auto name = real(folder);
  const Descriptor open = name ? openFolder(AT_FDCWD, *name) : Descriptor();
  auto names = open ? namesIn(open.get()) : std::nullopt;
  if (names) std::sort(names->begin(), names->end());
  return names;
}

bool PosixFiles::makeFolder(const std::string& path) {
  const auto name = real(path);
  return name && makeFolders(*name);
}

bool PosixFiles::copy(const std::string& from, const std::string& to) {
  const auto source = real(from), target = real(to);
  return source && target && copyTree(*source, *target);
}

bool PosixFiles::remove(const std::string& path) {
  const auto name = real(path);
  // The whole product is never what is meant.
  return name && *name != "/" && *name != locations_.root() && removeTree(*name);
}

bool PosixFiles::removeEmptyFolder(const std::string& path) {
  const auto name = real(path);
  return name && ::rmdir(name->c_str()) == 0;
}

FourCharCode PosixFiles::typeCode(const std::string& path) const {
  const auto name = real(path);
  return name ? finderType(*name) : 0;
}

bool PosixFiles::setCodes(const std::string& path, FourCharCode type, FourCharCode creator) {
  const auto name = real(path);
  return name && setFinderCodes(*name, type, creator);
}

}  // namespace tarvo
