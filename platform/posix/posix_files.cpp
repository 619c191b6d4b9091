// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/posix_files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

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

FileService::Kind kindOf(mode_t mode) {
  if (S_ISREG(mode)) return FileService::Kind::file;
  if (S_ISLNK(mode)) return FileService::Kind::link;
  return S_ISDIR(mode) ? FileService::Kind::folder : FileService::Kind::other;
}

// flags: as for fstatat.
Result<FileService::Kind> look(const Result<std::string>& name, int flags) {
  if (!name) return FileService::Kind::absent;  // such a path names nothing
  struct stat status{};
  if (::fstatat(AT_FDCWD, name->c_str(), &status, flags) == 0) return kindOf(status.st_mode);
  if (errno == ENOENT || errno == ENOTDIR) return FileService::Kind::absent;
  return systemFailure(*name, Attempt::look);
}

}  // namespace

PosixFiles::PosixFiles(const Locations& locations) : locations_(locations) {}

Result<std::string> PosixFiles::real(const std::string& path, Attempt attempt) const {
  // The system would cut a path at a zero byte and so name another file.
  if (!isAbsolutePath(path) || path.find('\0') != std::string::npos) return Failure{path, attempt, Reason::noPath};
  std::string real = locations_.resolve(path);
  while (real.size() > 1 && real.ends_with('/')) real.pop_back();
  return real;
}

Result<FileService::Kind> PosixFiles::kind(const std::string& path) const { return look(real(path, Attempt::look), 0); }

Result<FileService::Kind> PosixFiles::ownKind(const std::string& path) const {
  return look(real(path, Attempt::look), AT_SYMLINK_NOFOLLOW);
}

Result<> PosixFiles::checkWritable(const std::string& folder) const {
  const Result<std::string> name = real(folder, Attempt::write);
  if (!name) return name.error();
  if (::access(name->c_str(), W_OK | X_OK) == 0) return {};
  return systemFailure(*name, Attempt::write);
}

Result<std::string> PosixFiles::read(const std::string& path) const {
  const Result<std::string> name = real(path, Attempt::read);
  if (!name) return name.error();
  // Non-blocking: opening a pipe for reading would wait for a writer.
  const Descriptor file(::open(name->c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  struct stat status{};
  if (!file || ::fstat(file.get(), &status) != 0) return systemFailure(*name, Attempt::read);
  if (!S_ISREG(status.st_mode)) return Failure{*name, Attempt::read, Reason::noRegularFile};
  auto bytes = readAll(file.get(), static_cast<std::size_t>(status.st_size), maximumFileSize);
  if (!bytes) return systemFailure(*name, Attempt::read);
  return std::move(*bytes);
}

Result<> PosixFiles::write(const std::string& path, std::string_view bytes) {
  const Result<std::string> name = real(path, Attempt::write);
  if (!name) return name.error();
  if (path.ends_with('/')) return Failure{*name, Attempt::write, std::make_error_code(std::errc::is_a_directory)};
  return replaceFile(*name, bytes);
}

Result<> PosixFiles::keepUnreadable(const std::string& path) {
  const Result<std::string> name = real(path, Attempt::keep);
  if (!name) return name.error();
  return keepUnreadableFile(*name);
}

Result<std::vector<std::string>> PosixFiles::list(const std::string& folder) const {
  const Result<std::string> name = real(folder, Attempt::list);
  if (!name) return name.error();
  const Descriptor open = openFolder(AT_FDCWD, *name);
  auto names = open ? namesIn(open.get()) : std::nullopt;
  if (!names) return systemFailure(*name, Attempt::list);
  std::sort(names->begin(), names->end());
  return std::move(*names);
}

Result<> PosixFiles::makeFolder(const std::string& path) {
  const Result<std::string> name = real(path, Attempt::makeFolder);
  if (!name) return name.error();
  return makeFolders(*name);
}

Result<> PosixFiles::copy(const std::string& from, const std::string& to) {
  const Result<std::string> source = real(from, Attempt::copy), target = real(to, Attempt::create);
  if (!source) return source.error();
  if (!target) return target.error();
  return copyTree(*source, *target);
}

Result<> PosixFiles::remove(const std::string& path) {
  const Result<std::string> name = real(path, Attempt::remove);
  if (!name) return name.error();
  // The whole product is never what is meant.
  if (*name == "/" || *name == locations_.root()) return Failure{*name, Attempt::remove, Reason::wholeProduct};
  return removeTree(*name);
}

Result<> PosixFiles::removeEmptyFolder(const std::string& path) {
  const Result<std::string> name = real(path, Attempt::remove);
  if (!name) return name.error();
  if (::rmdir(name->c_str()) == 0) return {};
  return systemFailure(*name, Attempt::remove);
}

Result<FourCharCode> PosixFiles::typeCode(const std::string& path) const {
  const Result<std::string> name = real(path, Attempt::look);
  if (!name) return name.error();
  return finderType(*name);
}

Result<> PosixFiles::setCodes(const std::string& path, FourCharCode type, FourCharCode creator) {
  const Result<std::string> name = real(path, Attempt::setCodes);
  if (!name) return name.error();
  return setFinderCodes(*name, type, creator);
}

}  // namespace tarvo
