// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/classic_path.h"

#include <algorithm>
#include <vector>

#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

std::vector<std::string> components(std::string_view path) {
  std::vector<std::string> all;
  while (!path.empty()) {
    const std::string_view component = path.substr(0, path.find('/'));
    path.remove_prefix(std::min(component.size() + 1, path.size()));
    if (component.empty()) continue;
    all.emplace_back(component);
    // The separators change places: a name may hold the one that the path does not use.
    std::replace(all.back().begin(), all.back().end(), ':', '/');
  }
  return all;
}

}  // namespace

std::string classicPath(std::string_view path, std::string_view bootVolume) {
  std::vector<std::string> all = components(path);
  std::string volume;
  if (isAbsolutePath(path)) {
    volume = bootVolume;
    if (all.size() >= 2 && all.front() == "Volumes") {
      volume = all[1];
      all.erase(all.begin(), all.begin() + 2);
    }
  }
  std::string out = volume + ":";
  for (std::size_t i = 0; i < all.size(); ++i) {
    if (i > 0) out += ':';
    out += all[i];
  }
  return out;
}

}  // namespace tarvo
