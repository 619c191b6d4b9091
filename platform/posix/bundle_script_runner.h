// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <utility>

#include "platform/services/script_runner.h"

namespace tarvo {

class FileService;

// Answers the one script that the product asks of the desktop: the short version of an application, by its classic
// path. Duty: turn that path back into a real one and read "CFBundleShortVersionString" of its Contents/Info.plist.
// Not: running scripts; every other text, and a path with a double quote, has no result.
class BundleScriptRunner : public ScriptRunner {
 public:
  BundleScriptRunner(FileService& files, std::string bootVolume) : files_(files), bootVolume_(std::move(bootVolume)) {}
  std::optional<std::string> runScript(const std::string& source) override;

 private:
  FileService& files_;
  std::string bootVolume_;
};

}  // namespace tarvo
