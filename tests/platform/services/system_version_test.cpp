// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/system_version.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

constexpr const char* versionFile = "System/Library/CoreServices/SystemVersion.plist";

class SystemVersion : public testing::Test {
 protected:
  int versionWith(PropertyList productVersion) {
    Dictionary root;
    root.set("ProductVersion", std::move(productVersion));
    folder.write(versionFile, writePropertyList(root));
    return systemVersion(files, locations);
  }
  test::TemporaryFolder folder;
  Locations locations{folder.path(), folder.path()};
  PosixFiles files{locations};
};

TEST_F(SystemVersion, isTenTimesTheLeadingNumberCutToAnInteger) {
  const struct {
    const char* text;
    int version;
  } rows[] = {
      {"10.3.9", 103}, {"10.4", 104},   {"10.4.11", 104}, {"10.5", 105},  {"10.5.8", 105},
      {"10.6", 106},   {"10.6.8", 106}, {"10.9", 109},    {"10.10", 101}, {"10.15.7", 101},
      {"11.2", 112},   {"14", 140},     {"x", 0},         {"", 0},        {"1e300", 2147483647},
  };
  for (const auto& row : rows) EXPECT_EQ(versionWith(row.text), row.version) << row.text;
}

TEST_F(SystemVersion, isReadFromANumberAsFromItsText) {
  EXPECT_EQ(versionWith(Real{"10.6"}), 106);
  EXPECT_EQ(versionWith(Real{"10.10"}), 101);
  EXPECT_EQ(versionWith(Real{"nan"}), 0);
  EXPECT_EQ(versionWith(10), 100);
  EXPECT_EQ(versionWith(-10), -100);
}

TEST_F(SystemVersion, isZeroWhereItCannotBeRead) {
  EXPECT_EQ(systemVersion(files, locations), 0);
  folder.write(versionFile, "no property list");
  EXPECT_EQ(systemVersion(files, locations), 0);
  folder.write(versionFile, writePropertyList(Array{PropertyList("10.6")}));
  EXPECT_EQ(systemVersion(files, locations), 0);
  folder.write(versionFile, writePropertyList(Dictionary{}));
  EXPECT_EQ(systemVersion(files, locations), 0);
  EXPECT_EQ(versionWith(true), 0) << "no number";
}

}  // namespace
}  // namespace tarvo
