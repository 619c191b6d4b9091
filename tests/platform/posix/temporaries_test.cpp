// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/temporaries.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/posix/descriptor.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

namespace fs = std::filesystem;

// The parts of a name between its dashes.
std::vector<std::string> partsOf(const std::string& name) {
  std::vector<std::string> parts{""};
  for (const char c : name) {
    if (c == '-') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

std::string withPart(const std::string& name, std::size_t place, const std::string& part) {
  std::vector<std::string> parts = partsOf(name);
  parts.at(place) = part;
  std::string changed = parts[0];
  for (std::size_t i = 1; i < parts.size(); ++i) changed += '-' + parts[i];
  return changed;
}

constexpr std::size_t boot = 1, space = 2, process = 3, begin = 4;

// The number of a process that has ended.
std::string endedProcess() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);
  return std::to_string(child);
}

TEST(TemporaryName, isNewEachTimeAndTellsWhoMadeIt) {
  const std::string name = temporaryName();
  EXPECT_NE(name, temporaryName());
  const std::vector<std::string> parts = partsOf(name);
  ASSERT_EQ(parts.size(), 6U) << name;
  EXPECT_EQ(parts[0], ".tarvo");
  EXPECT_EQ(parts[process], std::to_string(::getpid()));
  EXPECT_EQ(parts[5].size(), 16U);
}

TEST(TemporaryName, ofAProcessThatRunsIsNotLeftBehind) {
  EXPECT_FALSE(isLeftBehind(temporaryName()));
  EXPECT_TRUE(isLeftBehind(withPart(temporaryName(), process, endedProcess())));
}

TEST(TemporaryName, ofAnEarlierProcessWithTheSameNumberIsLeftBehind) {
  EXPECT_TRUE(isLeftBehind(withPart(temporaryName(), begin, "1")));
}

TEST(TemporaryName, ofAnEarlierBootIsLeftBehind) {
  EXPECT_TRUE(isLeftBehind(withPart(temporaryName(), boot, "01234567")));
}

TEST(TemporaryName, whoseMakerNobodyKnowsIsLeftAlone) {
  const std::string own = temporaryName(), ended = withPart(own, process, endedProcess());
  EXPECT_FALSE(isLeftBehind(withPart(ended, space, "17"))) << "processes of another container are not seen";
  EXPECT_FALSE(isLeftBehind(withPart(own, boot, "0")));
  for (const std::string name : {"", ".tarvo-", ".tarvo-0123456789abcdef01234567", "a.TRet", ".tarvo-a-b-c-d-e",
                                 ".tarvo-1-2-3-4", "x.tarvo-", ".tarvo-01234567-1-1-1-", ".tarvo-01234567-1-1-1-a-b"}) {
    EXPECT_FALSE(isLeftBehind(name)) << name;
  }
}

class Sweeping : public testing::Test {
 protected:
  static constexpr const char* preferences = "Library/Preferences/";
  // below: of the home.
  void sweep(const std::vector<std::string>& below) const {
    std::vector<DiskPath> folders;
    for (const std::string& folder : below) folders.push_back(home_.at(folder));
    sweepTemporaries(DiskPath(home_.path()), folders);
  }
  std::string left_ = withPart(temporaryName(), process, endedProcess());
  test::TemporaryFolder home_;
};

TEST_F(Sweeping, removesWhatWasLeftBehindInTheFolders) {
  home_.write(preferences + left_, "x");
  home_.write("Dictionaries/" + left_, "x");
  home_.write(preferences + left_ + "f/inside/deep", "x");
  home_.write(std::string(preferences) + "TarvoStyle2009.plist", "kept");
  sweep({"Library/Preferences", "Dictionaries"});
  EXPECT_EQ(home_.names("Library/Preferences"), std::vector<std::string>{"TarvoStyle2009.plist"});
  EXPECT_TRUE(home_.names("Dictionaries").empty());
}

TEST_F(Sweeping, leavesWhatARunningProgramWrites) {
  const std::string own = preferences + temporaryName();
  home_.write(own, "x");
  sweep({"Library/Preferences"});
  EXPECT_TRUE(fs::exists(home_ / own));
}

TEST_F(Sweeping, leavesOtherFoldersAndWhatLinksLeadTo) {
  const test::TemporaryFolder elsewhere;
  elsewhere.write(left_, "x");
  home_.write("Documents/" + left_, "x");
  home_.write("shared/UserDic/" + left_, "x");
  fs::create_directory_symlink(home_ / "shared", home_ / "Wordhaven");
  home_.write("target", "x");
  home_.makeFolder("Library/Preferences");
  fs::create_symlink(home_ / "target", home_ / (preferences + left_));
  sweep({"Library/Preferences", "Wordhaven/UserDic"});
  sweepTemporaries(DiskPath(home_.path()), {DiskPath(elsewhere.path())});
  EXPECT_TRUE(fs::exists(elsewhere / left_));
  for (const std::string& rest : {"Documents/" + left_, "shared/UserDic/" + left_, std::string("target")}) {
    EXPECT_TRUE(fs::exists(home_ / rest)) << rest;
  }
}

TEST_F(Sweeping, hasNothingToDoInAHomeWithoutTheFolders) {
  sweep({"Library/Preferences"});
  sweepTemporaries(home_.at("nowhere"), {home_.at("nowhere/Library")});
  EXPECT_TRUE(fs::is_empty(home_.path()));
}

}  // namespace
}  // namespace tarvo
