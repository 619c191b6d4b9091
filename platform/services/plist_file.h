// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>

#include "platform/plist/property_list.h"
#include "platform/services/keeping.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// One property-list file whose root is a dictionary.
// Duty: read it, replace it whole, and see to it that bytes that could not be read are kept beside it (FileService::
// keepUnreadable) before the first replacement. Not: knowing what the file means.
namespace tarvo {

class FileService;

// Of a list that the product reads, in bytes: no set of styles comes near it, and what is larger would only use up the
// memory.
inline constexpr std::size_t largestListFile = std::size_t{64} << 20;

// The bytes of a list, which are looked at first: what is too large is not taken into memory.
Result<std::string> readListFile(const FileService& files, const DiskPath& path);
// The root dictionary of a property-list file that is only read. A damaged one fails with the place, where it is known.
Result<Dictionary> readDictionary(const FileService& files, const DiskPath& path);

class PlistFile {
 public:
  PlistFile(FileService& files, DiskPath path);
  const DiskPath& path() const { return path_; }
  // The root dictionary. Fails when the file is missing, cannot be looked at or read, is too large, is no property
  // list, or has another kind of root. bytes: where given, gets what the file holds, also when that is no property
  // list.
  Result<Dictionary> read(std::string* bytes = nullptr);
  // The file that is there could not be read, and was not replaced since.
  bool isUnread() const { return mustKeep_ && mayHoldBytes(); }
  // Replaces the file by these bytes (see plist_writer.h). After a failure the file is as it was.
  Result<> write(std::string_view bytes);
  Result<> write(const Dictionary& root);
  // The same; what could not be read is kept beside the file, and where that cannot be, in the keeping's folder: where
  // neither works nothing is replaced. Not where another file stands there by now, for which the keeping cares.
  Result<Replaced> replace(std::string_view bytes, Keeping keeping);

 private:
  bool mayHoldBytes() const;
  bool isAnother(const Keeping& keeping) const;
  FileService& files_;
  DiskPath path_;
  bool mustKeep_ = false;  // there are, or may be, bytes that nobody could read, and no kept copy of them yet
};

}  // namespace tarvo
