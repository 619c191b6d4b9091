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
  // As this program read or wrote it last; nothing: there was none, and whatever is there is another program's.
  std::optional<FileStamp> expected;
  // When another one stands there: it is kept under this name, sure; beside the file where the folder cannot have it.
  std::string foreignName;
  bool mayCopy = true;     // of the expected one, where the disk refuses the link
  bool isPrivate = false;  // a file that is not there yet is made for its owner alone
};

struct Replaced {
  FileStamp now;                    // of the file that stands there
  std::string kept;                 // the name of the former one in the folder; "" when it was not kept there
  std::string beside;               // its path beside the file, where it had to be kept there
  bool wasForeign = false;          // the file that went was not the expected one
  std::optional<Failure> unkept;    // why it is not in the folder, or is there and a power cut may take it
  std::optional<Failure> unsynced;  // it stands there and is read, but a power cut may bring the former one back
};

}  // namespace tarvo
