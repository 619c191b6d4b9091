// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/plist_file.h"

#include <optional>
#include <utility>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"

namespace tarvo {

namespace {

Result<Dictionary> readDictionary(const FileService& files, const DiskPath& path, std::string* content) {
  Result<std::string> bytes = readListFile(files, path);
  if (!bytes) return bytes.error();
  std::expected<PropertyList, PlistDamage> root = parsePropertyList(*bytes);
  if (content != nullptr) *content = std::move(*bytes);
  if (!root) {
    const auto& [line, column] = root.error();
    return Failure{path.text(), Attempt::read, Reason::noPropertyList, line, column};
  }
  if (root->dictionary() == nullptr) return Failure{path.text(), Attempt::read, Reason::noDictionary};
  return std::move(*root->dictionary());
}

}  // namespace

// It may grow in between.
Result<std::string> readListFile(const FileService& files, const DiskPath& path) {
  const Failure tooLarge{path.text(), Attempt::read, Reason::overLimit};
  const Result<FileStamp> stamp = files.stamp(path);
  if (stamp && stamp->size > largestListFile) return tooLarge;
  Result<std::string> bytes = files.read(path);
  if (bytes && bytes->size() > largestListFile) return tooLarge;
  return bytes;
}

Result<Dictionary> readDictionary(const FileService& files, const DiskPath& path) {
  return readDictionary(files, path, nullptr);
}

PlistFile::PlistFile(FileService& files, DiskPath path) : files_(files), path_(std::move(path)) {}

Result<Dictionary> PlistFile::read(std::string* bytes) {
  Result<Dictionary> root = readDictionary(files_, path_, bytes);
  mustKeep_ = !root && mayHoldBytes();
  return root;
}

// What cannot be looked at may be a file that is whole.
bool PlistFile::mayHoldBytes() const {
  const Result<FileService::Kind> kind = files_.kind(path_);
  return !kind || *kind == FileService::Kind::file;
}

bool PlistFile::isAnother(const Keeping& keeping) const {
  const Result<FileStamp> stamp = files_.stamp(path_);
  return !keeping.folder.empty() && keeping.expected && stamp && *stamp != *keeping.expected;
}

Result<Replaced> PlistFile::replace(std::string_view bytes, Keeping keeping) {
  if (isUnread() && !isAnother(keeping)) {
    const Result<> kept = files_.keepUnreadable(path_);
    if (!kept && keeping.folder.empty()) return kept.error();
    if (!kept) keeping.durability = Durability::sure;
    mustKeep_ = !kept;  // also when the write fails now: one kept copy of the same bytes is enough
  }
  Result<Replaced> replaced = files_.replace(path_, bytes, keeping);
  mustKeep_ = mustKeep_ && !replaced;
  return replaced;
}

Result<> PlistFile::write(std::string_view bytes) { return onTheDisk(replace(bytes, {})); }

Result<> PlistFile::write(const Dictionary& root) { return write(writePropertyList(root)); }

}  // namespace tarvo
