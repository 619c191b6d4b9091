// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/classic_path.h"

#include <gtest/gtest.h>

namespace tarvo {
namespace {

TEST(ClassicPath, namesTheVolumeAndSeparatesByColons) {
  const struct {
    const char *path, *classic;
  } rows[] = {
      {"/", "Macintosh HD:"},
      {"//", "Macintosh HD:"},
      {"/Users/taro/Library", "Macintosh HD:Users:taro:Library"},
      {"/Users//taro///", "Macintosh HD:Users:taro"},
      {"/a:b/c", "Macintosh HD:a/b:c"},
      {"/a/../b/.", "Macintosh HD:a:..:b:."},
      {"/Volumes", "Macintosh HD:Volumes"},
      {"/Volumes/", "Macintosh HD:Volumes"},
      {"/Volumes/外付け", "外付け:"},
      {"/Volumes/N/rest/x", "N:rest:x"},
      {"/Volumes/a:b/c", "a/b:c"},
      {"/volumes/N/x", "Macintosh HD:volumes:N:x"},
      {"a/b", ":a:b"},
      {"a/", ":a"},
      {"Volumes/N/x", ":Volumes:N:x"},
      {"", ":"},
  };
  for (const auto& row : rows) EXPECT_EQ(classicPath(row.path, "Macintosh HD"), row.classic) << row.path;
}

}  // namespace
}  // namespace tarvo
