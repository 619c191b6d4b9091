// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo {

class FileService;

// The folders that receive the product's mail scripts.
class MailScriptInstaller {
 public:
  // home: in the core's spelling.
  MailScriptInstaller(FileService& files, std::string home) : files_(files), home_(std::move(home)) {}
  // Makes the mail program's script folder for the running system version.
  bool createMailScriptFolder();

 private:
  FileService& files_;
  std::string home_;
};

}  // namespace tarvo
