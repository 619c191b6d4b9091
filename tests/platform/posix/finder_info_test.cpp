// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/finder_info.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "platform/posix/attributes.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

constexpr const char* finderInfo = "user.com.apple.FinderInfo";
constexpr FourCharCode technical = fourCharCode("TRjt"), blanks = 0x20202020;

class FinderInfo : public testing::Test {
 protected:
  void SetUp() override {
    if (place.empty()) GTEST_SKIP() << "this disk keeps no extended attributes";
  }
  std::string place = test::placeForAttributes();
  test::TemporaryFolder folder{place.empty() ? "/tmp" : place};
};

TEST_F(FinderInfo, holdsTypeAndCreatorInItsFirstEightOf32Bytes) {
  folder.write("file", "x");
  EXPECT_EQ(finderType(folder.at("file")), 0U);
  EXPECT_TRUE(setFinderCodes(folder.at("file"), technical, blanks));
  EXPECT_EQ(finderType(folder.at("file")), technical);
  EXPECT_EQ(attribute(folder.at("file"), finderInfo), "TRjt    " + std::string(24, '\0'));
}

TEST_F(FinderInfo, theOtherBytesAreKept) {
  const std::string rest = "flags and place of an icon";
  for (const std::size_t size : {24U, 26U}) {
    folder.write("file", "x");
    ASSERT_TRUE(setAttribute(folder.at("file"), finderInfo, "abcdefgh" + rest.substr(0, size)));
    EXPECT_TRUE(setFinderCodes(folder.at("file"), 0xFFFEFDFC, 0x00010203));
    EXPECT_EQ(attribute(folder.at("file"), finderInfo),
              std::string("\xFF\xFE\xFD\xFC\0\1\2\3", 8) + rest.substr(0, size));
    EXPECT_EQ(finderType(folder.at("file")), 0xFFFEFDFCU);
  }
}

TEST_F(FinderInfo, aShortAttributeHasATypeOnlyWhenItIsWhole) {
  folder.write("file", "x");
  ASSERT_TRUE(setAttribute(folder.at("file"), finderInfo, "TRj"));
  EXPECT_EQ(finderType(folder.at("file")), 0U);
  ASSERT_TRUE(setAttribute(folder.at("file"), finderInfo, "TRjt"));
  EXPECT_EQ(finderType(folder.at("file")), technical);
}

TEST_F(FinderInfo, whatCannotCarryItHasNone) {
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
  for (const char* name : {"missing", "pipe"}) {
    EXPECT_FALSE(setFinderCodes(folder.at(name), technical, blanks)) << name;
  }
  EXPECT_EQ(finderType(folder.at("pipe")), 0U);
  EXPECT_EQ(finderType(folder.at("missing")).error().cause, std::errc::no_such_file_or_directory);
}

}  // namespace
}  // namespace tarvo
