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
#include "platform/posix/final_links.h"
#include "platform/posix/finder_info.h"
#include "platform/posix/folders.h"
#include "platform/posix/keep_beside.h"
#include "platform/posix/keep_former.h"
#include "platform/posix/replace_file.h"
#include "platform/services/kept_copies.h"
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

// Without trailing slashes; a failure of the attempt for a path that names nothing.
Result<DiskPath> named(const DiskPath& path, Attempt attempt) {
  std::string text = path.text();
  // The system would cut a path at a zero byte and so name another file.
  if (!isAbsolutePath(text) || text.find('\0') != std::string::npos) return Failure{text, attempt, Reason::noPath};
  while (text.size() > 1 && text.ends_with('/')) text.pop_back();
  return DiskPath(std::move(text));
}

// flags: as for fstatat.
Result<FileService::Kind> look(const Result<DiskPath>& name, int flags) {
  if (!name) return FileService::Kind::absent;  // such a path names nothing
  struct stat status{};
  if (::fstatat(AT_FDCWD, name->text().c_str(), &status, flags) == 0) return kindOf(status.st_mode);
  if (errno == ENOENT || errno == ENOTDIR) return FileService::Kind::absent;
  return systemFailure(name->text(), Attempt::look);
}

}  // namespace

PosixFiles::PosixFiles(const Locations& locations, HomeFolders homeFolders)
    : locations_(locations), privateBelow_(homeFolders == HomeFolders::forTheUser ? locations.home() : DiskPath()) {}

Result<FileService::Kind> PosixFiles::kind(const DiskPath& path) const { return look(named(path, Attempt::look), 0); }

Result<FileService::Kind> PosixFiles::ownKind(const DiskPath& path) const {
  return look(named(path, Attempt::look), AT_SYMLINK_NOFOLLOW);
}

Result<> PosixFiles::checkWritable(const DiskPath& folder) const {
  const Result<DiskPath> name = named(folder, Attempt::write);
  if (!name) return name.error();
  if (::access(name->text().c_str(), W_OK | X_OK) == 0) return {};
  return systemFailure(name->text(), Attempt::write);
}

Result<FileService::Writers> PosixFiles::writersOf(const DiskPath& folder) const {
  const Result<DiskPath> name = named(folder, Attempt::look);
  if (!name) return name.error();
  const Result<unsigned> mode = modeForOthers(*name);
  if (!mode) return mode.error();
  return (*mode & S_IWOTH) != 0 ? Writers::everybody : Writers::some;
}

Result<std::string> PosixFiles::read(const DiskPath& path) const {
  const Result<DiskPath> name = named(path, Attempt::read);
  if (!name) return name.error();
  const Result<FinalTarget> target = followFinalLinks(*name, Attempt::read);
  if (!target) return target.error();
  // Non-blocking: opening a pipe for reading would wait for a writer.
  constexpr int flags = O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY | O_CLOEXEC;
  const Descriptor file(::open(target->path.text().c_str(), flags));
  struct stat status{};
  if (!file || ::fstat(file.get(), &status) != 0) return systemFailure(name->text(), Attempt::read);
  if (!S_ISREG(status.st_mode)) return Failure{name->text(), Attempt::read, Reason::noRegularFile};
  auto bytes = readAll(file.get(), static_cast<std::size_t>(status.st_size), maximumFileSize);
  if (!bytes) return systemFailure(name->text(), Attempt::read);
  return std::move(*bytes);
}

Result<Replaced> PosixFiles::replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) {
  const Result<DiskPath> name = named(path, Attempt::write);
  if (!name) return name.error();
  if (path.text().ends_with('/'))
    return Failure{name->text(), Attempt::write, std::make_error_code(std::errc::is_a_directory)};
  return replaceFile(*name, bytes, keeping, privateBelow_);
}

Result<FileStamp> PosixFiles::stamp(const DiskPath& path) const {
  const Result<DiskPath> name = named(path, Attempt::look);
  if (!name) return name.error();
  struct stat status{};
  if (::stat(name->text().c_str(), &status) == 0) return stampOf(status);
  return systemFailure(name->text(), Attempt::look);
}

Result<> PosixFiles::keepUnreadable(const DiskPath& path) {
  const Result<DiskPath> name = named(path, Attempt::keep);
  if (!name) return name.error();
  if (const Result<DiskPath> kept = keepBeside(*name, kept_copies::unreadable); !kept) return kept.error();
  return {};
}

Result<std::vector<std::string>> PosixFiles::list(const DiskPath& folder) const {
  const Result<DiskPath> name = named(folder, Attempt::list);
  if (!name) return name.error();
  const Descriptor open = openFolder(AT_FDCWD, name->text());
  auto names = open ? namesIn(open.get()) : std::nullopt;
  if (!names) return systemFailure(name->text(), Attempt::list);
  std::sort(names->begin(), names->end());
  return std::move(*names);
}

Result<> PosixFiles::makeFolder(const DiskPath& path) {
  const Result<DiskPath> name = named(path, Attempt::makeFolder);
  if (!name) return name.error();
  return makeFolders(*name, privateBelow_);
}

Result<> PosixFiles::makePrivateFolder(const DiskPath& path) {
  const Result<DiskPath> name = named(path, Attempt::makeFolder);
  if (!name) return name.error();
  Result<> made = tarvo::makePrivateFolder(*name);
  const bool isThere = !made && made.error().cause == std::errc::file_exists && kind(*name) == Kind::folder;
  return isThere ? Result<>() : made;
}

Result<> PosixFiles::copyAs(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) {
  const Result<DiskPath> source = named(from, Attempt::copy), target = named(to, Attempt::create);
  if (!source) return source.error();
  if (!target) return target.error();
  return copyTree(*source, *target, codes);
}

Result<> PosixFiles::makeFolderOf(const std::vector<DiskPath>& items, const DiskPath& folder) {
  const Result<DiskPath> target = named(folder, Attempt::makeFolder);
  if (!target) return target.error();
  if (Result<> made = makeFolders(target->folder(), privateBelow_); !made) return made;
  return copyIntoNewFolder(items, *target, modeOfNewFolder(*target, privateBelow_));
}

Result<> PosixFiles::move(const DiskPath& from, const DiskPath& to) {
  const Result<DiskPath> source = named(from, Attempt::copy), target = named(to, Attempt::create);
  if (!source) return source.error();
  if (!target) return target.error();
  return moveFile(*source, *target);
}

Result<> PosixFiles::remove(const DiskPath& path) {
  const Result<DiskPath> name = named(path, Attempt::remove);
  if (!name) return name.error();
  // The whole product is never what is meant.
  if (name->text() == "/" || *name == locations_.root())
    return Failure{name->text(), Attempt::remove, Reason::wholeProduct};
  return removeTree(*name);
}

Result<> PosixFiles::removeEmptyFolder(const DiskPath& path) {
  const Result<DiskPath> name = named(path, Attempt::remove);
  if (!name) return name.error();
  if (::rmdir(name->text().c_str()) == 0) return {};
  return systemFailure(name->text(), Attempt::remove);
}

Result<> PosixFiles::sync(const DiskPath& folder) {
  const Result<DiskPath> name = named(folder, Attempt::write);
  if (!name) return name.error();
  const Descriptor open = openFolder(AT_FDCWD, name->text());
  if (open ? syncFolder(open.get()) : errno == EACCES) return {};
  return systemFailure(name->text(), Attempt::write);
}

Result<FourCharCode> PosixFiles::typeCode(const DiskPath& path) const {
  const Result<DiskPath> name = named(path, Attempt::look);
  if (!name) return name.error();
  return finderType(*name);
}

Result<> PosixFiles::setCodes(const DiskPath& path, FourCharCode type, FourCharCode creator) {
  const Result<DiskPath> name = named(path, Attempt::setCodes);
  if (!name) return name.error();
  return setFinderCodes(*name, type, creator);
}

}  // namespace tarvo
