// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/bundle_script_runner.h"

#include <string_view>

#include "platform/services/locations.h"
#include "platform/services/plist_file.h"

namespace tarvo {
namespace {

constexpr std::string_view before = "tell application \"Finder\" \n set appInfo to info for file \"";
constexpr std::string_view after = "\" \n set appVer to short version of appInfo \n end tell";

std::optional<std::string> quotedPath(std::string_view source) {
  if (!source.starts_with(before) || !source.ends_with(after)) return std::nullopt;
  if (source.size() < before.size() + after.size()) return std::nullopt;
  const std::string_view path = source.substr(before.size(), source.size() - before.size() - after.size());
  return path.find('"') == std::string_view::npos ? std::optional(std::string(path)) : std::nullopt;
}

// "Volume:a:b" to "/a/b" or "/Volumes/Volume/a/b"; a "/" inside a component stands for a ":".
std::optional<std::string> pathFromClassic(std::string classic, std::string_view bootVolume) {
  for (char& c : classic) c = c == ':' ? '/' : c == '/' ? ':' : c;
  const std::size_t end = classic.find('/');
  if (end == 0 || end == std::string::npos) return std::nullopt;
  return std::string_view(classic).substr(0, end) == bootVolume ? classic.substr(end) : "/Volumes/" + classic;
}

}  // namespace

std::optional<std::string> BundleScriptRunner::runScript(const std::string& source) {
  const std::optional<std::string> classic = quotedPath(source);
  const std::optional<std::string> path = classic ? pathFromClassic(*classic, bootVolume_) : std::nullopt;
  if (!path) return std::nullopt;
  const Result<Dictionary> information =
      readDictionary(files_, storedPath(*path, locations_, files_) / "Contents/Info.plist");
  const std::string* version = information ? information->string("CFBundleShortVersionString") : nullptr;
  return version != nullptr ? std::optional(*version) : std::nullopt;
}

}  // namespace tarvo
