// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The disk, as the program needs it. Paths are absolute, in the core's spelling: implementations put the product's and
// the system's paths below the configured root (see locations.h). A path that is empty or not absolute names nothing.
// No operation throws or reports to the user; the caller decides what a failure means.
namespace tarvo {

// Four-character codes of a file, as one big-endian number: 'TRjt' is 0x54526A74. 0 means none.
using FourCharCode = std::uint32_t;
constexpr FourCharCode fourCharCode(const char (&text)[5]) {
  FourCharCode code = 0;
  for (int i = 0; i < 4; ++i) code = (code << 8) | static_cast<unsigned char>(text[i]);
  return code;
}

class FileService {
 public:
  virtual ~FileService() = default;

  enum class Kind { absent, file, folder, other };
  // What lies at the path after following links. A dangling link is absent.
  virtual Kind kind(const std::string& path) const = 0;
  bool exists(const std::string& path) const { return kind(path) != Kind::absent; }
  // Whether the path itself is a symbolic link, a dangling one too.
  virtual bool isLink(const std::string& path) const = 0;
  // Whether things may be made in a folder, as far as permissions tell.
  virtual bool isWritable(const std::string& folder) const = 0;

  // The whole content of a regular file. Never blocks on a pipe or a device.
  virtual std::optional<std::string> read(const std::string& path) const = 0;
  // Replaces or creates the file in one step (temporary file beside it, fsync, rename, fsync of the folder). Follows a
  // final symbolic link; keeps mode, owner and extended attributes of an existing regular file. Refuses a target that
  // is no regular file. False: whatever was there is unchanged and no temporary file is left.
  virtual bool write(const std::string& path, std::string_view bytes) = 0;
  // Keeps the present bytes of a regular file beside it as "<name>.unreadable" (then ".unreadable.2" to ".5", the fifth
  // being replaced), by a hard link where the disk can, else by a copy.
  virtual bool keepUnreadable(const std::string& path) = 0;

  // Names in a folder without "." and "..", hidden ones included, ascending by UTF-8 bytes.
  virtual std::optional<std::vector<std::string>> list(const std::string& folder) const = 0;
  // Creates the folder and missing ones above it, each with mode 0777 whatever the umask. True also when it is there.
  virtual bool makeFolder(const std::string& path) = 0;
  // Copies a file, folder (with everything in it) or link with mode and attributes; fails when anything is at the
  // target. A file whose copy fails is removed; what was finished before it stays.
  virtual bool copy(const std::string& from, const std::string& to) = 0;
  // Removes a file, a link, or a folder with everything in it; links are not followed. Stops at the first failure.
  virtual bool remove(const std::string& path) = 0;
  // Removes a folder that is empty.
  virtual bool removeEmptyFolder(const std::string& path) = 0;

  // Type code of a file, 0 when none is kept.
  virtual FourCharCode typeCode(const std::string& path) const = 0;
  // Sets type and creator, keeping the file's other attributes. False where the disk keeps none.
  virtual bool setCodes(const std::string& path, FourCharCode type, FourCharCode creator) = 0;
};

// Whether a name lies in the folder: the exact name, else any name equal to it ignoring case. Dictionary names are
// compared ignoring case, and users move dictionaries between disks that do and disks that do not.
bool existsIgnoringCase(const FileService& files, const std::string& path);

}  // namespace tarvo
