// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/plist_file.h"

#include <utility>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"

namespace tarvo {

PlistFile::PlistFile(FileService& files, std::string path) : files_(files), path_(std::move(path)) {}

std::optional<Dictionary> PlistFile::read() {
  mustKeep_ = false;
  if (const auto bytes = files_.read(path_)) {
    std::optional<PropertyList> root = readPropertyList(*bytes);
    if (root && root->dictionary()) return std::move(*root->dictionary());
  }
  mustKeep_ = files_.kind(path_) == FileService::Kind::file;
  return std::nullopt;
}

bool PlistFile::write(std::string_view bytes) {
  if (mustKeep_ && files_.kind(path_) == FileService::Kind::file && !files_.keepUnreadable(path_)) return false;
  mustKeep_ = false;  // also when the write fails now: one kept copy of the same bytes is enough
  return files_.write(path_, bytes);
}

bool PlistFile::write(const Dictionary& root) { return write(writePropertyList(root)); }

}  // namespace tarvo
