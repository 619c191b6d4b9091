// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <span>
#include <string>
#include <vector>

#include "platform/services/plist_file.h"

namespace tarvo {

// The user's style file on disk.
// Duty: read it whole and write it whole in one step, keeping each record's encoded bytes so that a write encodes only
// the records that changed. Not: holding the styles.
class StyleFile {
 public:
  StyleFile(FileService& files, DiskPath path) : file_(files, std::move(path)) {}
  const DiskPath& path() const { return file_.path(); }
  Result<Dictionary> read() { return file_.read(); }
  // After a failure the file is as it was.
  Result<> write(const Dictionary& root);
  // Every record of the root's "Style" as it stands, or would stand, in the file; empty when that is no array.
  std::span<const std::string> encode(const Dictionary& root);
  // The record at the index, or every record, is no longer what was written last.
  void recordChanged(std::size_t index);
  void allChanged() { encoded_.clear(); }

 private:
  PlistFile file_;
  std::vector<std::string> encoded_;  // by index in "Style"; an empty one has to be made anew
};

// Whether a style file that holds the record can be read back: lists within lists go only so deep.
bool fitsStyleFile(const PropertyList& record);

}  // namespace tarvo
