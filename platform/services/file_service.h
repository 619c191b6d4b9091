// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/services/keeping.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// The disk, as the program needs it. A path that is empty or not absolute names nothing.
// No operation throws or reports to the user; the caller decides what a failure means. "Not there" is an answer,
// "cannot be looked at" a failure.
namespace tarvo {

// Four-character codes of a file, as one big-endian number: 'TRjt' is 0x54526A74. 0 means none.
using FourCharCode = std::uint32_t;
constexpr FourCharCode fourCharCode(const char (&text)[5]) {
  FourCharCode code = 0;
  for (int i = 0; i < 4; ++i) code = (code << 8) | static_cast<unsigned char>(text[i]);
  return code;
}

struct FinderCodes {
  FourCharCode type = 0, creator = 0;
};

// What a replacement means to somebody who has to rely on it: one that a power cut may take back has failed.
Result<> onTheDisk(const Result<Replaced>& replaced);

class FileService {
 public:
  virtual ~FileService() = default;

  enum class Kind { absent, file, folder, link, other };
  // What lies at the path after following links; a dangling link is absent.
  virtual Result<Kind> kind(const DiskPath& path) const = 0;
  // What lies at the path itself: a link is a link, a dangling one too.
  virtual Result<Kind> ownKind(const DiskPath& path) const = 0;
  // Two questions, since neither is the opposite of the other: what cannot be looked at is neither known to be there
  // nor known not to be.
  bool isThere(const DiskPath& path) const;
  bool isAbsent(const DiskPath& path) const;
  // Whether things may be made in a folder, as far as permissions tell; the failure says why not.
  virtual Result<> checkWritable(const DiskPath& folder) const = 0;
  // Who, beside this user, may make and remove things in a folder, as the modes of it and of all above it say. "some"
  // may be none; everybody: every user of the machine.
  enum class Writers { some, everybody };
  virtual Result<Writers> writersOf(const DiskPath& folder) const = 0;

  // The whole content of a regular file. Never blocks on a pipe or a device.
  virtual Result<std::string> read(const DiskPath& path) const = 0;
  // Replaces or creates the file in one step (temporary file beside it, fsync, rename, fsync of the folder). Follows a
  // final symbolic link; keeps mode, owner and extended attributes of an existing regular file. Refuses a target that
  // is no regular file. After a failure whatever was there is unchanged and no temporary file is left.
  Result<> write(const DiskPath& path, std::string_view bytes);
  // The same; where there was none, only its owner reads it.
  Result<> writePrivate(const DiskPath& path, std::string_view bytes);
  // The same, and a file that goes is kept as asked for (keeping.h).
  virtual Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) = 0;
  // Which file lies at the path, links followed, and as it stands.
  virtual Result<FileStamp> stamp(const DiskPath& path) const = 0;
  // Keeps the present bytes of a regular file beside it as "<name>.unreadable" (then ".unreadable.2" to ".5", the fifth
  // being replaced), by a hard link where the disk can, else by a copy.
  virtual Result<> keepUnreadable(const DiskPath& path) = 0;

  // Names in a folder without "." and "..", hidden ones included, ascending by UTF-8 bytes.
  virtual Result<std::vector<std::string>> list(const DiskPath& folder) const = 0;
  // Creates the folder and missing ones above it, each open to every user whatever the umask, or, where the product is
  // set up so, to the user alone at and below the home. Done also when it is there.
  virtual Result<> makeFolder(const DiskPath& path) = 0;
  // Creates one folder that its owner alone may use. Done also when a folder is there, whoever may use it.
  virtual Result<> makePrivateFolder(const DiskPath& path) = 0;
  // Copies a file, folder (with everything in it) or link with mode and attributes; fails when anything is at the
  // target. The copy takes its name when all of it is on the disk; after a failure nothing of it is there.
  Result<> copy(const DiskPath& from, const DiskPath& to) { return copyAs(from, to, {}); }
  // The same; the copy of a file bears these codes, where the disk keeps codes.
  virtual Result<> copyAs(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) = 0;
  // Makes a new folder as makeFolder does, with copies of the items in their order. It takes its name when all of it is
  // on the disk. An item that cannot be copied ends the row: then the folder holds those before it, and the failure is
  // the item's. Fails when anything has the name.
  virtual Result<> makeFolderOf(const std::vector<DiskPath>& items, const DiskPath& folder) = 0;
  // Gives a file or folder another name on the same disk in one step. Fails when anything has that name.
  virtual Result<> move(const DiskPath& from, const DiskPath& to) = 0;
  // Removes a file, a link, or a folder with everything in it; links are not followed. Stops at the first failure. A
  // power cut may bring it back, as with the two around this, until the folder is synced.
  virtual Result<> remove(const DiskPath& path) = 0;
  // Removes a folder that is empty.
  virtual Result<> removeEmptyFolder(const DiskPath& path) = 0;

  // Puts on the disk what was made, moved and removed in a folder, so that a power cut takes nothing of it back. Fails
  // where that may not be so; no failure are disks that cannot, and a folder that this user may not list.
  virtual Result<> sync(const DiskPath& folder) = 0;

  // Type code of a file, 0 when none is kept.
  virtual Result<FourCharCode> typeCode(const DiskPath& path) const = 0;
  // Sets type and creator, keeping the file's other attributes. Fails where the disk keeps none.
  virtual Result<> setCodes(const DiskPath& path, FourCharCode type, FourCharCode creator) = 0;
};

// Whether a name may lie in the folder: the exact name, else any name equal to it ignoring case. Dictionary names are
// compared ignoring case, and users move dictionaries between disks that do and disks that do not. A name that cannot
// be looked at counts as there: nothing may be made over it, and nothing that names it is dropped.
bool existsIgnoringCase(const FileService& files, const DiskPath& path);

}  // namespace tarvo
