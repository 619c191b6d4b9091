// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "install/office_tool_choice.h"
#include "install/tool_list_file.h"
#include "platform/posix/posix_files.h"
#include "platform/services/common_module.h"
#include "platform/services/locations.h"
#include "platform/services/product_paths.h"
#include "platform/services/user_defaults.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

inline constexpr const char* listFile = "Users/taro/Library/Preferences/Wordhaven/TarvoManager.txt";
inline constexpr const char* listFolder = "Users/taro/Library/Preferences/Wordhaven";

// Notes each write of a file beside what the settings tell.
class NotingFiles : public PosixFiles {
 public:
  NotingFiles(const Locations& locations, std::string& log) : PosixFiles(locations), log_(log) {}
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override {
    log_ += "write:" + path.name() + " ";
    return PosixFiles::replace(path, bytes, keeping);
  }

 private:
  std::string& log_;
};

class ToolList : public testing::Test {
 protected:
  ToolList() {
    folder.makeFolder(listFolder);
    std::vector<PopUpButton::Item> items;
    for (const char* title : {"MG", "TX", "UD", "TM", "TL", "NP", "QB"}) items.push_back({.title = title});
    outlets.officeToolPopup.setItems(items);
    defaults.observer = [this](std::string_view key, const PropertyList*) {
      log += key.empty() ? "flush " : std::string(key) + " ";
    };
  }
  void choose(int index) {
    outlets.officeToolPopup.selectItemAtIndex(index);
    toolList.changeOfficeTool();
  }
  std::string written() const { return folder.read(listFile); }
  std::string lastLines() const { return written().substr(written().find("Tool_Path=")); }

  TemporaryFolder folder;
  std::string log;
  Locations locations{folder.path(), folder / "Users/taro"};
  NotingFiles files{locations, log};
  ProductPaths paths{locations, Dictionary{}};
  TarvoCommonModule module{paths};
  UserDefaults defaults{files, folder.at("Users/taro/Library/Preferences/manager.plist")};
  ToolListOutlets outlets;
  ToolListFile file{files, defaults, module, folder.at(listFile)};
  OfficeToolChoice toolList{outlets, file};
};

}  // namespace tarvo::test
