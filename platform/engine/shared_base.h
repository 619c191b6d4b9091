// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/engine/style_payload.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

namespace tarvo {

class FileService;

// A set as values and as the bytes that are stored.
struct EncodedSet {
  explicit EncodedSet(Array records);
  EncodedSet(Array records, StylePayload bytes) : styles(std::move(records)), payload(std::move(bytes)) {}
  const std::string& hash() const { return payload.hash(); }

  Array styles;
  StylePayload payload;
};

// The set from which the styles of this home and those of a service part: what the home's style file held when the
// service took it up, or was given by the service. On the service it may have been joined with what others changed, so
// that the service showed another set then.
struct SharedBase {
  SetStamp shown;  // by the service, with this set in it
  EncodedSet set;
};

// The file in which a home keeps it.
// Duty: keep it for one address, and say what of it holds. Not: locks; whoever writes holds the lock of the home.
// Format: the line "Tarvo shared styles 1", the address, then for each base a line "kept" or "promised" with its stamp
// and the size of its payload (style_payload.h) in bytes, an empty line, and the payloads. A promised one is about to
// be shared: it holds once the service shows its stamp. Several stand there while nobody knows what became of them.
// Only this user reads the file. One of another address, or damaged anywhere, is as good as none.
class BaseFile {
 public:
  // path: empty keeps nothing beyond this run. Not owned.
  BaseFile(FileService& files, DiskPath path, std::string address);
  // The one that holds while the service shows this stamp.
  std::optional<SharedBase> holding(const SetStamp& shown) const;
  // Those that were promised later, in their order.
  std::vector<Array> promisedSince(const SetStamp& shown) const;
  // In the place of all that is kept; on the disk when it returns.
  Result<> keep(const SharedBase& base);
  // Beside the present one, before the service is asked to store it.
  Result<> promise(const SharedBase& next);

 private:
  struct Entry {
    std::string word;  // "kept" or "promised"
    SetStamp shown;
    std::string payload;
    friend bool operator==(const Entry&, const Entry&) = default;
  };
  std::vector<Entry> read() const;
  std::size_t placeHolding(const SetStamp& shown) const;
  Result<> write(std::vector<Entry> entries);
  FileService& files_;
  DiskPath path_;
  std::string address_;
  std::vector<Entry> entries_;  // what the file holds or should, as far as it was sound
};

}  // namespace tarvo
