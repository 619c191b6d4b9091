// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/services/script_runner.h"

namespace tarvo {

class FileService;
class Locations;

// Answers the one script that the product asks of the desktop: the short version of an application, by its classic
// path. Duty: find the application (storedPath) and read "CFBundleShortVersionString" of its Contents/Info.plist.
// Not: running scripts; every other text, and a path with a double quote, has no result.
class BundleScriptRunner : public ScriptRunner {
 public:
  BundleScriptRunner(const FileService& files, const Locations& locations, std::string bootVolume)
      : files_(files), locations_(locations), bootVolume_(std::move(bootVolume)) {}
  std::optional<std::string> runScript(const std::string& source) override;

 private:
  const FileService& files_;
  const Locations& locations_;
  std::string bootVolume_;
};

}  // namespace tarvo
