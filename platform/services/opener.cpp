// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/opener.h"

#include "platform/services/file_service.h"
#include "platform/services/workspace.h"

namespace tarvo {

void Opener::cannot(const Failure& failure) const {
  if (didFail) didFail(failure);
}

void Opener::openFile(const DiskPath& path) const {
  const bool isAbsent = files_.isAbsent(path);
  const Result<> opened = workspace_.openFile(path);
  if (isAbsent) {
    cannot({path.text(), Attempt::open, std::make_error_code(std::errc::no_such_file_or_directory)});
  } else if (!opened) {
    cannot(opened.error());
  }
}

void Opener::openAddress(const std::string& address) const {
  if (const Result<> opened = workspace_.openAddress(address); !opened) cannot(opened.error());
}

void Opener::launchApplication(const std::string& name) const {
  if (const Result<> launched = workspace_.launchApplication(name); !launched) cannot(launched.error());
}

}  // namespace tarvo
