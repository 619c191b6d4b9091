// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "install/office_folder_choice.h"
#include "install/office_folder_search.h"
#include "platform/services/common_module.h"
#include "platform/services/product_paths.h"
#include "platform/services/script_runner.h"
#include "tests/install/addin_world.h"

namespace tarvo::test {

class ScriptedService : public ScriptRunner {
 public:
  std::optional<std::string> runScript(const std::string& source) override {
    sources.push_back(source);
    return answer;
  }
  std::vector<std::string> sources;
  std::optional<std::string> answer = "14.1.0";
};

// The folder that is chosen is "/Volumes/D/Office", below the product's root.
class FolderSearch : public testing::Test, protected AddinWorld {
 protected:
  FolderSearch() {
    ship({word2011(), excel2011(), outlook2011()});
    choose(folder / inRoot(chosen));
    EXPECT_TRUE(start());
  }
  void choose(std::string path) { picked = std::move(path); }
  void searchFolder() {
    panels.paths.clear();
    if (picked) panels.paths.push_back(*picked);
    choice.tell = [this](const std::string& sentence) { told = sentence; };
    choice.SelectOfficeFolder();
  }
  void application(const std::string& name, const char* type, const char* signature) const {
    Dictionary information;
    if (type != nullptr) information.set("CFBundlePackageType", type);
    if (signature != nullptr) information.set("CFBundleSignature", signature);
    folder.write(inRoot(chosen) + "/" + name + "/Contents/Info.plist", writePropertyList(information));
  }
  bool offer(const AddinEntry& shipped, int version, const std::string& signature) {
    return search.getAddOfficeDictionary(shipped, version, real(chosen) / "App.app", signature, real(chosen));
  }
  std::string pathOf(const AddinEntry& row) const { return addinText(row, addin_keys::appPath); }
  std::string placeOf(const AddinEntry& row) const { return addinText(row, addin_keys::installFolderPath); }

  std::optional<std::string> picked;  // nothing: cancelled
  std::string told;                   // by the last search
  const std::string chosen = "/Volumes/D/Office";
  ScriptedService scripts;
  ProductPaths paths{locations, Dictionary{}};
  TarvoCommonModule module{paths};
  OfficeFolderSearch search{{files, locations, scripts, module}, lists, mailScripts};
  OfficeFolderChoice choice{panels, texts, search, table};
};

}  // namespace tarvo::test
