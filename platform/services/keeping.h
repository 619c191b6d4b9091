// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "platform/services/result.h"
#include "platform/text/paths.h"

// What FileService::replace is to do with the file that goes, and what became of it.
namespace tarvo {

// A file as it stood at a moment: another file at its path, or other bytes in it, have another stamp.
struct FileStamp {
  std::uint64_t device = 0, inode = 0, size = 0;
  std::int64_t modified = 0;  // nanoseconds since 1970 in UTC, as the disk tells it
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

// How long what is kept must last. sure: the link and its bytes are on the disk before the file is replaced, and where
// that cannot be had nothing is replaced. synced: the same, but a former file that cannot be kept is replaced all the
// same. quick: the next power cut may take it.
enum class Durability { quick, synced, sure };

// The former file is kept by a hard link, so that it costs neither time nor room, else by a copy.
struct Keeping {
  DiskPath folder;   // made where it is missing, for its owner alone; empty: nothing is kept
  std::string name;  // of the file that goes, when it is the expected one; "" keeps none
  Durability durability = Durability::quick;
  std::optional<FileStamp> expected;  // as this program read or wrote it last; nothing: whatever is there is expected
  std::string foreignName;            // when another one stands there: kept under this name, synced
  bool mayCopy = true;                // of the expected one, where the disk refuses the link
};

struct Replaced {
  FileStamp now;            // of the file that stands there
  std::string kept;         // the name of the former one in the folder; "" when it was not kept
  bool wasForeign = false;  // the file that went was not the expected one
  bool wasCopied = false;
  std::optional<Failure> unkept;    // why the former one could not be kept
  std::optional<Failure> unsynced;  // it stands there and is read, but a power cut may bring the former one back
};

}  // namespace tarvo
