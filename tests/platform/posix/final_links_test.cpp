// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/final_links.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "platform/posix/keep_beside.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

class FinalLinks : public testing::Test {
 protected:
  void link(const char* name, const char* content) const { ASSERT_EQ(::symlink(content, (folder / name).c_str()), 0); }
  bool giveAway(const char* name) const { return ::lchown((folder / name).c_str(), 12345, 12345) == 0; }
  Result<FinalTarget> follow(const char* name) const { return followFinalLinks(folder.at(name), Attempt::read); }
  test::TemporaryFolder folder;
  PosixFiles files{Locations("/", folder.path())};
};

TEST_F(FinalLinks, areFollowedToTheirEnd) {
  folder.write("inner/file", "bytes");
  link("inner/second", "file");
  link("first", "inner/second");
  ASSERT_TRUE(follow("first"));
  EXPECT_EQ(follow("first")->path, folder.at("inner/file"));
  EXPECT_TRUE(follow("first")->present);
  EXPECT_EQ(files.read(folder.at("first")), std::string("bytes"));
}

TEST_F(FinalLinks, mayLeadToNothing) {
  link("gone", "nowhere");
  ASSERT_TRUE(follow("gone"));
  EXPECT_EQ(follow("gone")->path, folder.at("nowhere"));
  EXPECT_FALSE(follow("gone")->present);
  EXPECT_EQ(files.read(folder.at("gone")).error(),
            (Failure{folder / "gone", Attempt::read, std::make_error_code(std::errc::no_such_file_or_directory)}));
}

TEST_F(FinalLinks, thatLeadInACircleEndSomewhere) {
  link("one", "two");
  link("two", "one");
  ASSERT_FALSE(follow("one"));
  EXPECT_EQ(follow("one").error().cause, std::errc::too_many_symbolic_link_levels);
}

TEST_F(FinalLinks, ofSomebodyElseAreNeitherReadNorKept) {
  folder.write("file", "bytes");
  link("link", "file");
  if (!giveAway("link")) GTEST_SKIP() << "only root may give links away";
  EXPECT_EQ(files.read(folder.at("link")).error(), (Failure{folder / "link", Attempt::read, Reason::foreignLink}));
  EXPECT_EQ(keepBeside(folder.at("link"), ".unreadable").error().cause, Reason::foreignLink);
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"file", "link"}));
}

TEST_F(FinalLinks, ofSomebodyElseAreFollowedInTheFoldersAbove) {
  folder.write("inner/file", "bytes");
  link("elsewhere", "inner");
  if (!giveAway("elsewhere")) GTEST_SKIP() << "only root may give links away";
  EXPECT_EQ(files.read(folder.at("elsewhere/file")), std::string("bytes"));
}

}  // namespace
}  // namespace tarvo
