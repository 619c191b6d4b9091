// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/plist/property_list.h"
#include "platform/text/paths.h"

// The path module: where the product's files lie, from one property list "WordhavenPaths.plist" (one key per function)
// with an optional second one laid over it. Values begin with "/" (the product's root) or "~/" (the user's home). Duty:
// answer them on this disk, or, where they are stored, shown or compared, as the product spells them; answer addresses.
// Not: testing whether anything is there.
namespace tarvo {

class Locations;

class ProductPaths {
 public:
  // configuration: nothing when the list could not be read.
  ProductPaths(const Locations& locations, std::optional<Dictionary> configuration);
  ProductPaths(const ProductPaths&) = delete;
  ProductPaths& operator=(const ProductPaths&) = delete;

  // Programs of one process share the module: it is initialised until each of them has terminated it.
  void tarvoPathInitialize();
  // 0 when the configuration could be read, else 1; or the number configured under the function's own name.
  int tarvoPathLoadDictAndHelper(int mode);
  void tarvoPathTerminate();
  bool isInitialized() const { return users_ > 0; }

  DiskPath tarvoPathPreferencesFolderURL() const;
  DiskPath tarvoPathTechnicalDicEngFolderURL() const;
  DiskPath tarvoPathTechnicalDicJpnFolderURL() const;
  DiskPath tarvoPathUserDicFolderURL() const;
  DiskPath tarvoPathUserTmaFolderURL() const;
  std::string tarvoPathMemoryEtoJTitle() const;
  std::string tarvoPathMemoryJtoETitle() const;
  DiskPath tarvoPathMemoryEtoJURL() const;
  DiskPath tarvoPathMemoryJtoEURL() const;
  DiskPath tarvoPathTranslationStylePathURL() const;
  std::string tarvoPathSupportURL() const;  // an address, "" when none is configured
  std::string tarvoPathHomepageURL() const;
  // Application path of one of the product's tools, keys "tarvoPathGetAppleyPath.<number>"; "" for an unknown tool.
  ProductPath tarvoPathGetAppleyPath(int tool) const;

  ProductPath preferencesWordhavenCache() const;         // the product's cache folder
  std::string volumeName() const;                        // of the boot volume, for classic paths
  std::string engineURL() const;                         // style service as configured; "" for the local engine
  DiskPath localEnginePath() const;                      // the local engine's file
  std::vector<DiskPath> applicationFolders() const;      // where an application is looked for by its name, in order
  std::vector<ProductPath> runningApplications() const;  // that count as running, whatever the system says

 private:
  ProductPath path(std::string_view key, std::string_view otherwise) const;
  DiskPath onDisk(std::string_view key, std::string_view otherwise) const;
  ProductPath spelled(const std::string& configured) const;
  std::vector<ProductPath> pathList(std::string_view key, const std::vector<std::string>& otherwise) const;
  std::string text(std::string_view key, std::string_view otherwise) const;
  const Locations& locations_;
  Dictionary configuration_;
  bool readable_;
  int users_ = 0;
};

}  // namespace tarvo
