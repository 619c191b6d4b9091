// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"
#include "style/earlier_styles.h"

namespace tarvo {

// How the file stands to what was read or written last: another program may have changed it or taken it away.
enum class StandingOfFile { ours, changed, gone };

// The user's style file on disk.
// Duty: read it whole and write it whole in one step, keeping each record's encoded bytes so that a write encodes only
// the records that changed. Not: holding the styles.
class StyleFile {
 public:
  // earlier: keeps what is replaced; null keeps nothing. Not owned.
  StyleFile(FileService& files, DiskPath path, EarlierStyles* earlier = nullptr)
      : files_(files), file_(files, std::move(path)), earlier_(earlier) {}
  const DiskPath& path() const { return file_.path(); }
  // What may be out of reach for an instant, or is replaced meanwhile, is tried three times within a fifth of a second.
  Result<Dictionary> read();
  // The same once, and as if it had not been read.
  Result<Dictionary> readPresent() const { return readDictionary(files_, path()); }
  // change: why; nothing when no style has changed. After a failure the file is as it was, but for one that says that
  // the disk could not sync it. Fails for more than could be read back (largestListFile).
  Result<> write(const Dictionary& root, std::optional<ChangeKind> change);
  // All that a write would put there, in a file of the user's choice; what is known of the style file stays.
  Result<> writeCopy(const Dictionary& root, const DiskPath& path) { return files_.write(path, bytesOf(root)); }
  // What became of the file that the last write replaced; empty when it replaced none.
  const Replaced& replaced() const { return replaced_; }
  // Looks, and reads nothing. A file that cannot be looked at counts as ours.
  StandingOfFile standing() const;
  // Every record of the root's "Style" as it stands, or would stand, in the file; empty when that is no array.
  std::span<const std::string> encode(const Dictionary& root);
  // The record at the index, or every record, is no longer what was written last.
  void recordChanged(std::size_t index);
  void allChanged() { encoded_.clear(); }

 private:
  Result<Dictionary> readOnce(bool& isStill);
  std::string bytesOf(const Dictionary& root);
  Result<Replaced> replace(const std::string& bytes, std::optional<ChangeKind> change);
  FileService& files_;
  PlistFile file_;
  EarlierStyles* earlier_;
  std::optional<FileStamp> stamp_;  // of the file as it was read or written last
  std::string fingerprint_;         // of its bytes; "" where they could not be read
  Replaced replaced_;
  std::vector<std::string> encoded_;  // by index in "Style"; an empty one has to be made anew
};

// Whether a style file that holds the record can be read back: lists within lists go only so deep.
bool fitsStyleFile(const PropertyList& record);
// Whether all of them are records that a style file can hold.
bool areStyles(const Array& styles);
// Whether the root of a style file holds styles, and nothing else in their places.
bool holdsStyles(const Dictionary& root);

}  // namespace tarvo
