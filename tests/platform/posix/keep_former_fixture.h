// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "platform/posix/keep_former.h"
#include "platform/posix/replace_file.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

using Names = std::vector<std::string>;

// A file that is replaced, and the folder in which the former one is kept.
class KeepFormer : public testing::Test {
 protected:
  KeepFormer() { folder.write("file", "old"); }

  Keeping keeping(const std::string& name = "former") const {
    return {.folder = folder.at("Above/Kept"), .name = name, .expected = stamp(), .foreignName = "foreign"};
  }
  FileStamp stamp() const {
    struct stat status{};
    EXPECT_EQ(::stat((folder / "file").c_str(), &status), 0);
    return stampOf(status);
  }
  mode_t modeOf(const std::string& path) const {
    struct stat status{};
    EXPECT_EQ(::stat((folder / path).c_str(), &status), 0) << path;
    return status.st_mode & 07777;
  }
  std::vector<std::string> kept() const { return folder.names("Above/Kept"); }
  const TemporaryFolder folder;
};

}  // namespace tarvo::test
