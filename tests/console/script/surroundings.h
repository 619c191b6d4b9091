// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "console/script/recorder.h"
#include "platform/posix/posix_files.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

// A recorder over a disk of its own.
class Surroundings : public testing::Test {
 protected:
  std::string log() {
    std::string all;
    for (const Json& event : recorder_.take()) all += writeJson(event) + "\n";
    return all;
  }
  DiskPath at(const std::string& path) const { return DiskPath(folder_.path() + path); }
  const TemporaryFolder folder_;
  Locations locations_{folder_.path(), folder_ / "home"};
  PosixFiles disk_{locations_};
  Recorder recorder_{locations_};
  RecordedFiles files_{disk_, recorder_};
};

}  // namespace tarvo::test
