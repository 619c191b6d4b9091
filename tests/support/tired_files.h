// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "tests/support/memory_files.h"

namespace tarvo::test {

// A disk whose files can be read after some tries.
class TiredFiles : public MemoryFiles {
 public:
  Result<std::string> read(const DiskPath& path) const override {
    if (++reads < readsUntilDone) return Failure{path.text(), Attempt::read, std::make_error_code(cause)};
    return MemoryFiles::read(path);
  }
  mutable int reads = 0;
  int readsUntilDone = 3;
  std::errc cause = std::errc::io_error;
};

}  // namespace tarvo::test
