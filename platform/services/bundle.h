// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/paths.h"

// The application's resource folder.
// Duty: find a resource by name, type and subfolder: RES/sub/name[.type], then RES/<language>.lproj/sub/name[.type] in
// the user's order of languages; exact case. Not: reading it.
namespace tarvo {

class FileService;

class Bundle {
 public:
  // folder: the resource folder. languages: "ja", "en", … the user's first.
  Bundle(const FileService& files, DiskPath folder, std::vector<std::string> languages);
  const DiskPath& folder() const { return folder_; }
  const std::vector<std::string>& languages() const { return languages_; }
  // The path of a resource; type "" adds no dot. What cannot be looked at counts as there: its use tells why.
  std::optional<DiskPath> resource(std::string_view name, std::string_view type, std::string_view subfolder = {}) const;
  // The drawing behind an image name such as "MG.tif" or "SM32": the extension is dropped and images/<name>.svg looked
  // up.
  std::optional<DiskPath> image(std::string_view name) const;

 private:
  const FileService& files_;
  DiskPath folder_;
  std::vector<std::string> languages_;
};

}  // namespace tarvo
