// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/bundle.h"

#include <utility>

#include "platform/services/file_service.h"
#include "platform/text/text_rules.h"

namespace tarvo {

Bundle::Bundle(const FileService& files, DiskPath folder, std::vector<std::string> languages)
    : files_(files), folder_(std::move(folder)), languages_(std::move(languages)) {}

std::optional<DiskPath> Bundle::resource(std::string_view name, std::string_view type,
                                         std::string_view subfolder) const {
  if (name.empty()) return std::nullopt;
  std::string file(name);
  if (!type.empty()) file.append(".").append(type);
  const std::string below = joinPath(subfolder, file);
  DiskPath path = folder_ / below;
  if (!files_.isAbsent(path)) return path;
  for (const std::string& language : languages_) {
    path = folder_ / (language + ".lproj") / below;
    if (!files_.isAbsent(path)) return path;
  }
  return std::nullopt;
}

std::optional<DiskPath> Bundle::image(std::string_view name) const {
  return resource(deletingPathExtension(name), "svg", "images");
}

}  // namespace tarvo
