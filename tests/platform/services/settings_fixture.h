// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>

#include "platform/plist/plist_reader.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "platform/services/user_defaults.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

// Settings on a real disk.
class SettingsTest : public testing::Test {
 protected:
  // What the disk holds under the key.
  PropertyList stored(std::string_view key) const {
    const auto list = readPropertyList(folder.read(file));
    const Dictionary* root = list ? list->dictionary() : nullptr;
    const PropertyList* value = root != nullptr ? root->find(key) : nullptr;
    return value != nullptr ? *value : PropertyList("absent");
  }
  ino_t fileNumber() const {
    struct stat status{};
    return ::stat((folder / file).c_str(), &status) == 0 ? status.st_ino : 0;
  }
  const std::string file = "Library/Preferences/tarvo.plist";
  TemporaryFolder folder;
  Locations locations{"/", folder.path()};
  PosixFiles files{locations};
};

}  // namespace tarvo::test
