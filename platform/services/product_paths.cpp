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

std::string ProductPaths::tarvoPathPreferencesFolderURL() const {
  return path("tarvoPathPreferencesFolderURL", "~/Library/Preferences/Wordhaven");
}

std::string ProductPaths::tarvoPathTechnicalDicEngFolderURL() const {
  return path("tarvoPathTechnicalDicEngFolderURL", "/Library/Application Support/Wordhaven/TarvoEiwa/TechDic/EJ");
}

std::string ProductPaths::tarvoPathTechnicalDicJpnFolderURL() const {
  return path("tarvoPathTechnicalDicJpnFolderURL", "/Library/Application Support/Wordhaven/TarvoEiwa/TechDic/JE");
}

std::string ProductPaths::tarvoPathUserDicFolderURL() const {
  return path("tarvoPathUserDicFolderURL", "~/Library/Application Support/Wordhaven/UserDic");
}

std::string ProductPaths::tarvoPathUserTmaFolderURL() const {
  return path("tarvoPathUserTmaFolderURL", "~/Library/Application Support/Wordhaven/UserTMA");
}

std::string ProductPaths::tarvoPathMemoryEtoJTitle() const { return text("tarvoPathMemoryEtoJTitle", ""); }
std::string ProductPaths::tarvoPathMemoryJtoETitle() const { return text("tarvoPathMemoryJtoETitle", ""); }
std::string ProductPaths::tarvoPathMemoryEtoJURL() const { return path("tarvoPathMemoryEtoJURL", ""); }
std::string ProductPaths::tarvoPathMemoryJtoEURL() const { return path("tarvoPathMemoryJtoEURL", ""); }

std::string ProductPaths::tarvoPathTranslationStylePathURL() const {
  return path("tarvoPathTranslationStylePathURL", joinPath(tarvoPathPreferencesFolderURL(), "TarvoStyle2009.plist"));
}

std::string ProductPaths::tarvoPathSupportURL() const { return text("tarvoPathSupportURL", ""); }
std::string ProductPaths::tarvoPathHomepageURL() const { return text("tarvoPathHomepageURL", ""); }

std::string ProductPaths::tarvoPathGetAppleyPath(int tool) const {
  return path("tarvoPathGetAppleyPath." + std::to_string(tool), "");
}

std::string ProductPaths::preferencesWordhavenCache() const {
  return path("preferencesWordhavenCache", "~/Library/Preferences/Wordhaven/Cache");
}

std::string ProductPaths::volumeName() const { return text("VolumeName", "Macintosh HD"); }
std::string ProductPaths::engineURL() const { return text("EngineURL", ""); }

std::string ProductPaths::localEnginePath() const {
  return path("LocalEnginePath", "~/Library/Application Support/Wordhaven/TarvoEngine.plist");
}

std::vector<std::string> ProductPaths::applicationFolders() const {
  return pathList("ApplicationFolders", {"/Applications", "/Applications/Utilities", "~/Applications"});
}

std::vector<std::string> ProductPaths::runningApplications() const { return pathList("RunningApplications", {}); }

std::string ProductPaths::path(std::string_view key, std::string_view otherwise) const {
  return spelled(text(key, otherwise));
}

std::string ProductPaths::spelled(const std::string& configured) const {
  if (configured == "~" || configured.starts_with("~/")) return locations_.inHome(configured.substr(1));
  return locations_.coreSpelling(configured);
}

std::vector<std::string> ProductPaths::pathList(std::string_view key, std::vector<std::string> otherwise) const {
  std::vector<std::string> paths = std::move(otherwise);
  if (const Array* configured = configuration_.array(key)) {
    paths.clear();
    for (const PropertyList& path : *configured) {
      if (path.string() != nullptr) paths.push_back(*path.string());
    }
  }
  for (std::string& path : paths) path = spelled(path);
  return paths;
}

std::string ProductPaths::text(std::string_view key, std::string_view otherwise) const {
  const std::string* value = configuration_.string(key);
  return value != nullptr ? *value : std::string(otherwise);
}

}  // namespace tarvo
