// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "platform/plist/property_list.h"

// One property-list file whose root is a dictionary.
// Duty: read it, replace it whole, and see to it that bytes that could not be read are kept beside it (FileService::
// keepUnreadable) before the first replacement. Not: knowing what the file means.
namespace tarvo {

class FileService;

class PlistFile {
 public:
  PlistFile(FileService& files, std::string path);
  const std::string& path() const { return path_; }
  // The root dictionary. Nothing when the file is missing, unreadable, no property list, or has another kind of root.
  std::optional<Dictionary> read();
  // Replaces the file by these bytes (see plist_writer.h). False: the file is as it was.
  bool write(std::string_view bytes);
  bool write(const Dictionary& root);

 private:
  FileService& files_;
  std::string path_;
  bool mustKeep_ = false;  // there are bytes that nobody could read, and no kept copy of them yet
};

}  // namespace tarvo
