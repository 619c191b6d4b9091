// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/replace_file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <optional>
#include <utility>

#include "platform/posix/attributes.h"
#include "platform/posix/descriptor.h"
#include "platform/posix/final_links.h"
#include "platform/posix/keep_former.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

struct Target {
  std::string path;
  std::optional<struct stat> present;  // nothing: the file is new
};

Failure notWritten(const std::string& path) { return systemFailure(path, Attempt::write); }
Failure notWritten(const std::string& path, std::errc cause) {
  return {path, Attempt::write, std::make_error_code(cause)};
}

// Where the bytes belong after following final links.
Result<Target> findTarget(const DiskPath& asked) {
  const Result<FinalTarget> found = followFinalLinks(asked, Attempt::write);
  if (!found) return found.error();
  const std::string path = found->path.text();
  if (!found->present) return Target{path, {}};
  struct stat status{};
  if (::fstat(found->present.get(), &status) != 0) return notWritten(path);
  if (S_ISREG(status.st_mode)) return Target{path, status};
  if (S_ISDIR(status.st_mode)) return notWritten(path, std::errc::is_a_directory);
  return Failure{path, Attempt::write, Reason::noRegularFile};
}

// Gives the file the owner where the system allows; the permissions that are safe under the owner it then has.
mode_t handOver(int file, const struct stat& present) {
  const mode_t mode = present.st_mode & 07777;
  if (::fchown(file, present.st_uid, present.st_gid) == 0) return mode;
  // A file that now belongs to somebody else must not run as its owner or group.
  const bool hasGroup = ::fchown(file, static_cast<uid_t>(-1), present.st_gid) == 0;
  return mode & static_cast<mode_t>(hasGroup ? ~S_ISUID : ~(S_ISUID | S_ISGID));
}

// Hands attributes, owner and mode of the present file to the new one. In this order: an owner may set attributes only
// while he may write.
bool takeOver(int folder, const std::string& name, const struct stat& present, int file) {
  const Descriptor old(::openat(folder, name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (old) copyAttributes(old.get(), file);
  struct stat fresh{};
  if (::fstat(file, &fresh) != 0) return false;
  const bool sameOwner = fresh.st_uid == present.st_uid && fresh.st_gid == present.st_gid;
  const mode_t mode = sameOwner ? present.st_mode & 07777 : handOver(file, present);
  return ::fchmod(file, mode | S_IRUSR) == 0;  // what its owner cannot read would be lost to him a second time
}

bool fill(int folder, const std::string& name, const Target& target, const Descriptor& file, std::string_view bytes) {
  if (target.present && !takeOver(folder, name, *target.present, file.get())) return false;
  return writeAll(file.get(), bytes) && ::fsync(file.get()) == 0;
}

// The new file beside the old one, until it has its name.
class Replacement {
 public:
  // newMode: of a file that replaces none.
  Replacement(const Target& target, Descriptor folder, mode_t newMode)
      : target_(target), folder_(std::move(folder)), name_(lastPathComponent(target.path)), newMode_(newMode) {}

  Result<FileStamp> write(std::string_view bytes) {
    temporary_ = temporaryName();
    if (temporary_.empty()) return notWritten(target_.path);
    // A new file takes the umask's answer; one that replaces another is closed to everybody until it has its mode.
    const mode_t mode = target_.present ? 0600 : newMode_;
    Descriptor file(
        ::openat(folder_.get(), temporary_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
    if (!file) return notWritten(target_.path);
    struct stat status{};
    const bool filled = fill(folder_.get(), name_, target_, file, bytes) && ::fstat(file.get(), &status) == 0;
    if (filled && file.close()) return stampOf(status);
    return givenUp(notWritten(target_.path));
  }

  Result<> keepFormer(FormerFile& former) {
    if (!target_.present) return {};
    Result<> kept = former.keep(folder_.get(), name_, target_.path);
    if (!kept) return givenUp(kept.error());
    return {};
  }

  Result<> rename() {
    if (::renameat(folder_.get(), temporary_.c_str(), folder_.get(), name_.c_str()) != 0)
      return givenUp(notWritten(target_.path));
    return {};
  }

  // The new bytes are what everybody reads by now.
  std::optional<Failure> sync() const {
    return syncFolder(folder_.get()) ? std::nullopt : std::optional(notWritten(target_.path));
  }

 private:
  Failure givenUp(Failure failure) const {
    ::unlinkat(folder_.get(), temporary_.c_str(), 0);
    return failure;
  }

  const Target& target_;
  Descriptor folder_;
  std::string name_, temporary_;
  mode_t newMode_;
};

}  // namespace

Result<Replaced> replaceFile(const DiskPath& path, std::string_view bytes, const Keeping& keeping,
                             const DiskPath& privateBelow) {
  const Result<Target> target = findTarget(path);
  if (!target) return target.error();
  if (target->path.ends_with('/')) return notWritten(target->path, std::errc::is_a_directory);
  Descriptor folder = openFolder(AT_FDCWD, deletingLastPathComponent(target->path));
  if (!folder) return notWritten(deletingLastPathComponent(target->path));
  Replacement replacement(*target, std::move(folder), keeping.isPrivate ? 0600 : 0666);
  const Result<FileStamp> written = replacement.write(bytes);
  if (!written) return written.error();
  FormerFile former(keeping, privateBelow);
  if (const bool isKept = !keeping.folder.empty(); isKept) {
    if (const Result<> kept = replacement.keepFormer(former); !kept) return kept.error();
  }
  if (const Result<> renamed = replacement.rename(); !renamed) {
    former.drop();
    return renamed.error();
  }
  Replaced replaced = former.outcome();
  replaced.now = *written;
  replaced.unsynced = replacement.sync();
  return replaced;
}

}  // namespace tarvo
