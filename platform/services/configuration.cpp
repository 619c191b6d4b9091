// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/configuration.h"

#include <utility>

#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"

namespace tarvo {

Configuration::Configuration(const FileService& files, const std::vector<DiskPath>& paths) {
  for (const DiskPath& path : paths) {
    Result<Dictionary> values = readDictionary(files, path);
    if (values) {
      files_.push_back({path, std::move(*values)});
    } else if (!unread_ && !files.isAbsent(path)) {
      unread_ = values.error();
    }
  }
}

const Configuration::File* Configuration::fileWith(std::string_view key) const {
  for (const File& file : files_) {
    if (file.values.find(key) != nullptr) return &file;
  }
  return nullptr;
}

const PropertyList* Configuration::find(std::string_view key) const {
  const File* file = fileWith(key);
  return file != nullptr ? file->values.find(key) : nullptr;
}

const DiskPath* Configuration::fileOf(std::string_view key) const {
  const File* file = fileWith(key);
  return file != nullptr ? &file->path : nullptr;
}

std::string Configuration::text(std::string_view key) const {
  const PropertyList* value = find(key);
  const std::string* text = value != nullptr ? value->string() : nullptr;
  return text != nullptr ? *text : std::string();
}

bool Configuration::boolean(std::string_view key) const {
  const PropertyList* value = find(key);
  return value != nullptr && value->booleanValue();
}

}  // namespace tarvo
