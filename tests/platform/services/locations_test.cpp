// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/locations.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(Locations, withoutARootEveryPathIsItself) {
  Locations locations("/", "/home/taro");
  EXPECT_EQ(locations.home(), "/home/taro");
  EXPECT_EQ(locations.inHome("Library"), "/home/taro/Library");
  for (const char* path : {"/", "/Library/x", "/home/taro/y", "relative", ""}) {
    EXPECT_EQ(locations.resolve(path), path);
    EXPECT_EQ(locations.coreSpelling(path), path);
    EXPECT_EQ(locations.picked(path), path);
  }
  EXPECT_EQ(locations.shown("/home/taro/y"), "home:/y");
  EXPECT_EQ(locations.shown("/home/tarot"), "/home/tarot");
  EXPECT_EQ(locations.shown("/Library"), "/Library");
}

TEST(Locations, theProductLiesBelowTheRoot) {
  const Locations locations("/srv/my root/", "/srv/my root/Users/taro/");
  EXPECT_EQ(locations.root(), "/srv/my root");
  EXPECT_EQ(locations.home(), "/Users/taro");
  const struct {
    const char *core, *real, *shown;
  } rows[] = {
      {"/Library/x", "/srv/my root/Library/x", "root:/Library/x"},
      {"/Users/taro/y", "/srv/my root/Users/taro/y", "home:/y"},
      {"/Users/taro", "/srv/my root/Users/taro", "home:/"},
      {"/", "/srv/my root", "root:/"},
      {"/srv/my rooted", "/srv/my root/srv/my rooted", "root:/srv/my rooted"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(locations.resolve(row.core), row.real);
    EXPECT_EQ(locations.resolve(row.real), row.real) << "resolving twice changes nothing";
    EXPECT_EQ(locations.coreSpelling(row.real), row.core);
    EXPECT_EQ(locations.shown(row.core), row.shown);
    EXPECT_EQ(locations.shown(row.real), row.shown);
  }
  for (const char* path : {"", "relative", "./x"}) EXPECT_EQ(locations.resolve(path), path);
}

TEST(Locations, aHomeOutsideTheRootIsUsedAsItIs) {
  const Locations locations("/srv/root", "/home/taro");
  EXPECT_EQ(locations.home(), "/home/taro");
  EXPECT_EQ(locations.resolve("/home/taro/Library"), "/home/taro/Library");
  EXPECT_EQ(locations.resolve("/home/tarot"), "/srv/root/home/tarot");
  EXPECT_EQ(locations.shown("/home/taro/Library"), "home:/Library");
}

TEST(Locations, whatAUserPickedIsFoundAgain) {
  Locations locations("/srv/root", "/srv/root/Users/taro");
  EXPECT_EQ(locations.picked("/srv/root/Library/a"), "/Library/a");
  EXPECT_EQ(locations.resolve("/media/usb/b.whstyle"), "/srv/root/media/usb/b.whstyle");
  EXPECT_EQ(locations.picked("/media/usb"), "/media/usb");
  EXPECT_EQ(locations.resolve("/media/usb/b.whstyle"), "/media/usb/b.whstyle");
  EXPECT_EQ(locations.shown("/media/usb/b.whstyle"), "/media/usb/b.whstyle");
  EXPECT_EQ(locations.picked("/"), "/");
  EXPECT_EQ(locations.resolve("/Library"), "/srv/root/Library") << "the root stays the product's";
}

}  // namespace
}  // namespace tarvo
