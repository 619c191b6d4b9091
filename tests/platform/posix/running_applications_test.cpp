// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/running_applications.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "platform/services/locations.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {
namespace fs = std::filesystem;

// A program of the system, copied to a place of our own and started there.
class Running {
 public:
  explicit Running(const std::string& program) {
    fs::create_directories(fs::path(program).parent_path());
    fs::copy_file(fs::canonical("/bin/sleep"), program);
    process_ = ::fork();
    if (process_ == 0) {
      ::execl(program.c_str(), program.c_str(), "60", static_cast<char*>(nullptr));
      ::_exit(1);
    }
    std::error_code error;
    const fs::path exe = "/proc/" + std::to_string(process_) + "/exe";
    for (int i = 0; i < 1000 && fs::read_symlink(exe, error) != program; ++i) ::usleep(10'000);
  }
  ~Running() { end(); }
  void end() {
    if (process_ <= 0) return;
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
    process_ = 0;
  }

 private:
  pid_t process_ = 0;
};

bool lists(const Locations& locations, const std::string& name) {
  const ProductPath bundle(name);
  const auto all = runningApplications(locations);
  return std::count(all.begin(), all.end(), bundle) == 1;
}

TEST(RunningApplications, namesTheBundleAroundEachProgramInTheCoresSpelling) {
  const test::TemporaryFolder folder;
  const std::string root = fs::canonical(folder.path());
  fs::create_directory_symlink(root, folder / "root by a link");
  Running one(root + "/Applications/Tarvo 辞書.app/Contents/MacOS/tool");
  const Running again(root + "/Applications/Tarvo 辞書.app/Contents/MacOS/second tool");
  const Running inner(root + "/Applications/Outer.APP/Contents/Inner.app/run");
  const Running none(root + "/Applications/plain/tool.app");

  const Locations plain("/", "/home/taro"), below(root, "/home/taro"), byLink(folder / "root by a link", "/home/taro");
  EXPECT_TRUE(lists(plain, root + "/Applications/Tarvo 辞書.app"));
  EXPECT_TRUE(lists(below, "/Applications/Tarvo 辞書.app"));
  EXPECT_TRUE(lists(byLink, "/Applications/Tarvo 辞書.app"));
  EXPECT_TRUE(lists(below, "/Applications/Outer.APP/Contents/Inner.app"));
  EXPECT_FALSE(lists(below, "/Applications/Outer.APP"));
  EXPECT_FALSE(lists(below, "/Applications/plain/tool.app"));
  one.end();
  EXPECT_TRUE(lists(below, "/Applications/Tarvo 辞書.app")) << "its second program still runs";
}

TEST(RunningApplications, aProgramThatEndedIsNotListed) {
  const test::TemporaryFolder folder;
  const std::string root = fs::canonical(folder.path());
  const Locations locations(root, "/home/taro");
  {
    const Running one(root + "/A.app/tool");
    EXPECT_TRUE(lists(locations, "/A.app"));
  }
  EXPECT_FALSE(lists(locations, "/A.app"));
}

}  // namespace
}  // namespace tarvo
