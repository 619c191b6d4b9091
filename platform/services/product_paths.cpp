// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/product_paths.h"

#include <utility>

#include "platform/services/locations.h"
#include "platform/text/text_rules.h"

namespace tarvo {

ProductPaths::ProductPaths(const Locations& locations, std::optional<Dictionary> configuration)
    : locations_(locations), readable_(configuration.has_value()) {
  if (configuration) configuration_ = std::move(*configuration);
}

void ProductPaths::tarvoPathInitialize() { ++users_; }

int ProductPaths::tarvoPathLoadDictAndHelper(int) {
  const PropertyList* configured = configuration_.find("tarvoPathLoadDictAndHelper");
  if (configured != nullptr && configured->hasIntegerValue()) return configured->integerValue();
  return readable_ ? 0 : 1;
}

void ProductPaths::tarvoPathTerminate() { --users_; }

DiskPath ProductPaths::tarvoPathPreferencesFolderURL() const {
  return onDisk("tarvoPathPreferencesFolderURL", "~/Library/Preferences/Wordhaven");
}

DiskPath ProductPaths::tarvoPathTechnicalDicEngFolderURL() const {
  return onDisk("tarvoPathTechnicalDicEngFolderURL", "/Library/Application Support/Wordhaven/TarvoEiwa/TechDic/EJ");
}

DiskPath ProductPaths::tarvoPathTechnicalDicJpnFolderURL() const {
  return onDisk("tarvoPathTechnicalDicJpnFolderURL", "/Library/Application Support/Wordhaven/TarvoEiwa/TechDic/JE");
}

DiskPath ProductPaths::tarvoPathUserDicFolderURL() const {
  return onDisk("tarvoPathUserDicFolderURL", "~/Library/Application Support/Wordhaven/UserDic");
}

DiskPath ProductPaths::tarvoPathUserTmaFolderURL() const {
  return onDisk("tarvoPathUserTmaFolderURL", "~/Library/Application Support/Wordhaven/UserTMA");
}

std::string ProductPaths::tarvoPathMemoryEtoJTitle() const { return text("tarvoPathMemoryEtoJTitle", ""); }
std::string ProductPaths::tarvoPathMemoryJtoETitle() const { return text("tarvoPathMemoryJtoETitle", ""); }
DiskPath ProductPaths::tarvoPathMemoryEtoJURL() const { return onDisk("tarvoPathMemoryEtoJURL", ""); }
DiskPath ProductPaths::tarvoPathMemoryJtoEURL() const { return onDisk("tarvoPathMemoryJtoEURL", ""); }

DiskPath ProductPaths::tarvoPathTranslationStylePathURL() const {
  return onDisk("tarvoPathTranslationStylePathURL", (tarvoPathPreferencesFolderURL() / "TarvoStyle2009.plist").text());
}

std::string ProductPaths::tarvoPathSupportURL() const { return text("tarvoPathSupportURL", ""); }
std::string ProductPaths::tarvoPathHomepageURL() const { return text("tarvoPathHomepageURL", ""); }

ProductPath ProductPaths::tarvoPathGetAppleyPath(int tool) const {
  return path("tarvoPathGetAppleyPath." + std::to_string(tool), "");
}

ProductPath ProductPaths::preferencesWordhavenCache() const {
  return path("preferencesWordhavenCache", "~/Library/Preferences/Wordhaven/Cache");
}

std::string ProductPaths::volumeName() const { return text("VolumeName", "Macintosh HD"); }
std::string ProductPaths::engineURL() const { return text("EngineURL", ""); }

DiskPath ProductPaths::localEnginePath() const {
  return onDisk("LocalEnginePath", "~/Library/Application Support/Wordhaven/TarvoEngine.plist");
}

std::vector<DiskPath> ProductPaths::applicationFolders() const {
  std::vector<DiskPath> folders;
  for (const ProductPath& folder :
       pathList("ApplicationFolders", {"/Applications", "/Applications/Utilities", "~/Applications"})) {
    folders.push_back(locations_.onDisk(folder));
  }
  return folders;
}

std::vector<ProductPath> ProductPaths::runningApplications() const { return pathList("RunningApplications", {}); }

ProductPath ProductPaths::path(std::string_view key, std::string_view otherwise) const {
  return spelled(text(key, otherwise));
}

DiskPath ProductPaths::onDisk(std::string_view key, std::string_view otherwise) const {
  return locations_.onDisk(path(key, otherwise));
}

ProductPath ProductPaths::spelled(const std::string& configured) const {
  const bool isInHome = configured == "~" || configured.starts_with("~/");
  return locations_.inProduct(isInHome ? locations_.inHome(configured.substr(1)) : DiskPath(configured));
}

std::vector<ProductPath> ProductPaths::pathList(std::string_view key, const std::vector<std::string>& otherwise) const {
  std::vector<ProductPath> paths;
  const Array* configured = configuration_.array(key);
  if (configured == nullptr) {
    for (const std::string& path : otherwise) paths.push_back(spelled(path));
    return paths;
  }
  for (const PropertyList& path : *configured) {
    if (path.string() != nullptr) paths.push_back(spelled(*path.string()));
  }
  return paths;
}

std::string ProductPaths::text(std::string_view key, std::string_view otherwise) const {
  const std::string* value = configuration_.string(key);
  return value != nullptr ? *value : std::string(otherwise);
}

}  // namespace tarvo
