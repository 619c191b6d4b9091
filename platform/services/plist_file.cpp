// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/plist_file.h"

#include <optional>
#include <utility>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"

namespace tarvo {

Result<Dictionary> readDictionary(const FileService& files, const DiskPath& path) {
  const Result<std::string> bytes = files.read(path);
  if (!bytes) return bytes.error();
  std::optional<PropertyList> root = readPropertyList(*bytes);
  if (!root) return Failure{path.text(), Attempt::read, Reason::noPropertyList};
  if (root->dictionary() == nullptr) return Failure{path.text(), Attempt::read, Reason::noDictionary};
  return std::move(*root->dictionary());
}

PlistFile::PlistFile(FileService& files, DiskPath path) : files_(files), path_(std::move(path)) {}

Result<Dictionary> PlistFile::read() {
  Result<Dictionary> root = readDictionary(files_, path_);
  mustKeep_ = !root && mayHoldBytes();
  return root;
}

// What cannot be looked at may be a file that is whole.
bool PlistFile::mayHoldBytes() const {
  const Result<FileService::Kind> kind = files_.kind(path_);
  return !kind || *kind == FileService::Kind::file;
}

Result<> PlistFile::write(std::string_view bytes) {
  if (mustKeep_ && mayHoldBytes()) {
    if (Result<> kept = files_.keepUnreadable(path_); !kept) return kept;
  }
  mustKeep_ = false;  // also when the write fails now: one kept copy of the same bytes is enough
  return files_.write(path_, bytes);
}

Result<> PlistFile::write(const Dictionary& root) { return write(writePropertyList(root)); }

}  // namespace tarvo
