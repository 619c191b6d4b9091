// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/locations.h"

#include <gtest/gtest.h>

#include "tests/support/memory_files.h"

namespace tarvo {
namespace {

TEST(Locations, withoutARootEveryPathIsItself) {
  const Locations locations("/", "/home/taro");
  EXPECT_EQ(locations.home().text(), "/home/taro");
  EXPECT_EQ(locations.inHome("Library").text(), "/home/taro/Library");
  for (const char* path : {"/", "/Library/x", "/home/taro/y", "relative", ""}) {
    EXPECT_EQ(locations.onDisk(ProductPath(path)).text(), path);
    EXPECT_EQ(locations.inProduct(DiskPath(path)).text(), path);
  }
  EXPECT_EQ(locations.shown(DiskPath("/home/taro/y")), "home:/y");
  EXPECT_EQ(locations.shown(DiskPath("/home/tarot")), "/home/tarot");
  EXPECT_EQ(locations.shown(DiskPath("/Library")), "/Library");
}

TEST(Locations, theProductLiesBelowTheRoot) {
  const Locations locations("/srv/my root/", "/srv/my root/Users/taro/");
  EXPECT_EQ(locations.root().text(), "/srv/my root");
  EXPECT_EQ(locations.home().text(), "/srv/my root/Users/taro");
  const struct {
    const char *product, *disk, *shown;
  } rows[] = {
      {"/Library/x", "/srv/my root/Library/x", "root:/Library/x"},
      {"/Users/taro/y", "/srv/my root/Users/taro/y", "home:/y"},
      {"/Users/taro", "/srv/my root/Users/taro", "home:/"},
      {"/", "/srv/my root", "root:/"},
      {"/srv/my rooted", "/srv/my root/srv/my rooted", "root:/srv/my rooted"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(locations.onDisk(ProductPath(row.product)).text(), row.disk);
    EXPECT_EQ(locations.onDisk(ProductPath(row.disk)).text(), row.disk) << "a path that lies below the root stays";
    EXPECT_EQ(locations.inProduct(DiskPath(row.disk)).text(), row.product);
    EXPECT_EQ(locations.shown(DiskPath(row.disk)), row.shown);
  }
  for (const char* path : {"", "relative", "./x"}) EXPECT_EQ(locations.onDisk(ProductPath(path)).text(), path);
}

TEST(Locations, aHomeOutsideTheRootIsUsedAsItIs) {
  const Locations locations("/srv/root", "/home/taro");
  EXPECT_EQ(locations.home().text(), "/home/taro");
  EXPECT_EQ(locations.onDisk(ProductPath("/home/taro/Library")).text(), "/home/taro/Library");
  EXPECT_EQ(locations.onDisk(ProductPath("/home/tarot")).text(), "/srv/root/home/tarot");
  EXPECT_EQ(locations.inProduct(DiskPath("/home/taro/Library")).text(), "/home/taro/Library");
  EXPECT_EQ(locations.shown(DiskPath("/home/taro/Library")), "home:/Library");
}

TEST(Locations, aPathOutsideTheRootIsNoneOfTheProduct) {
  const Locations locations("/srv/root", "/srv/root/Users/taro");
  EXPECT_EQ(locations.inProduct(DiskPath("/media/usb")).text(), "/media/usb");
  EXPECT_EQ(locations.shown(DiskPath("/media/usb/b.whstyle")), "/media/usb/b.whstyle");
  EXPECT_EQ(locations.onDisk(ProductPath("/media/usb")).text(), "/srv/root/media/usb");
}

TEST(StoredPath, meansWhatLiesBelowTheRootElseWhatTheUserPicked) {
  const Locations locations("/srv/root", "/srv/root/Users/taro");
  test::MemoryFiles files;
  const auto meant = [&](const char* text) { return storedPath(text, locations, files).text(); };
  EXPECT_EQ(meant("/Office/Word.app"), "/srv/root/Office/Word.app") << "nothing is anywhere";
  files.put("/Office/Word.app", "");
  EXPECT_EQ(meant("/Office/Word.app"), "/Office/Word.app");
  files.refuse(test::MemoryFiles::Operation::look, "/srv/root/Office/Word.app");
  EXPECT_EQ(meant("/Office/Word.app"), "/srv/root/Office/Word.app") << "it may be there";
  files.allowAll();
  files.refuse(test::MemoryFiles::Operation::look, "/Office/Word.app", std::errc::io_error);
  EXPECT_EQ(meant("/Office/Word.app"), "/Office/Word.app") << "below the root it cannot be";
  files.allowAll();
  files.put("/srv/root/Office/Word.app", "");
  EXPECT_EQ(meant("/Office/Word.app"), "/srv/root/Office/Word.app");
  EXPECT_EQ(meant(""), "");
}

}  // namespace
}  // namespace tarvo
