// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/user_files.h"

#include "platform/services/locations.h"

namespace tarvo {

namespace {
constexpr const char* identifier = "com.wordhaven.TarvoManager";
}

std::string userDefaultsPath(const Locations& locations) {
  return locations.inHome(std::string("Library/Preferences/") + identifier + ".plist");
}

std::string lockPath(const Locations& locations) {
  return locations.inHome(std::string("Library/Preferences/") + identifier + ".lock");
}

std::string toolListPath(const Locations& locations) {
  return locations.inHome("Library/Preferences/Wordhaven/TarvoManager.txt");
}

}  // namespace tarvo
