// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/product_defaults.h"

#include <cstdlib>
#include <filesystem>
#include <initializer_list>
#include <sstream>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/posix/process.h"
#include "platform/services/configuration.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {

namespace fs = std::filesystem;

std::string environment(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

// A folder of the installed product, as it lies relative to the running program; nothing for a program in its build
// tree.
std::optional<DiskPath> besideProgram(const char* rest) {
  std::error_code error;
  const fs::path own = programFolder().text();
  if (own.empty()) return std::nullopt;
  const fs::path folder = (own / "../share/tarvo-manager" / rest).lexically_normal();
  return fs::is_directory(folder, error) ? std::optional(DiskPath(folder.string())) : std::nullopt;
}

std::string login() {
  const std::string name = loginName();
  return !name.empty() ? name : environment("USER");
}

DiskPath systemHome() {
  std::string home = environment("HOME");
  if (isAbsolutePath(home)) return DiskPath(std::move(home));
  DiskPath known = loginHome();
  return !known.empty() ? known : DiskPath("/");
}

}  // namespace

DiskPath authoritiesFor(const Configuration& configuration) {
  std::string configured = configuration.text(configuration_keys::authorities);
  if (!configured.empty()) return DiskPath(std::move(configured));
  const std::string known = environment("SSL_CERT_FILE");
  return known.empty() ? DiskPath() : absolutePath(known);
}

DiskPath programFolder() {
  const Result<DiskPath> file = programFile();
  return file ? file->folder() : DiskPath();
}

DiskPath absolutePath(const std::string& path) {
  std::error_code error;
  fs::path full = fs::absolute(path, error).lexically_normal();
  if (!full.has_filename() && full != full.root_path()) full = full.parent_path();
  return DiskPath(full.string());
}

std::string languageFromEnvironment() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const std::string value = environment(name);
    if (!value.empty()) return value.starts_with("ja") ? "ja" : "en";
  }
  return "en";
}

DiskPath defaultResources() { return besideProgram("resources").value_or(DiskPath(TARVO_BUILD_RESOURCES)); }

std::vector<DiskPath> configurationFiles() {
  std::vector<DiskPath> files;
  // A relative folder would be another one in each working folder.
  const auto add = [&files](const std::string& folder) {
    if (isAbsolutePath(folder)) files.push_back(DiskPath(folder) / "tarvo-manager/config.plist");
  };
  const std::string own = environment("XDG_CONFIG_HOME"), home = environment("HOME");
  if (isAbsolutePath(own)) add(own);
  if (!isAbsolutePath(own) && isAbsolutePath(home)) add(joinPath(home, ".config"));
  std::istringstream folders(environment("XDG_CONFIG_DIRS"));
  for (std::string folder; std::getline(folders, folder, ':');) add(folder);
  add("/etc");
  return files;
}

std::optional<Failure> missingResource(const DiskPath& folder) {
  for (const char* name : {"DefaultAddin.plist", "WordhavenPaths.plist"}) {
    const DiskPath path = folder / name;
    std::error_code error;
    if (fs::is_regular_file(path.text(), error)) continue;
    return Failure{path.text(), Attempt::look, error ? error : Reason::noRegularFile};
  }
  return std::nullopt;
}

Places findPlaces(const std::optional<std::string>& root, const std::optional<std::string>& home) {
  Places places;
  const std::string namedRoot = root ? *root : environment("TARVO_ROOT");
  const std::string configured = TARVO_DEFAULT_ROOT;  // NOLINT(readability-redundant-string-init): the build sets it
  if (!namedRoot.empty()) {
    places.root = absolutePath(namedRoot);
  } else {
    places.root = !configured.empty() ? DiskPath(configured) : besideProgram("root").value_or(DiskPath("/"));
  }
  const std::string namedHome = home ? *home : environment("TARVO_HOME");
  if (!namedHome.empty()) {
    places.home = absolutePath(namedHome);
  } else {
    places.home = namedRoot.empty() ? systemHome() : places.root / "Users" / login();
  }
  return places;
}

}  // namespace tarvo
