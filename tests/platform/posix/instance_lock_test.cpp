// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/posix/instance_lock.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <optional>

#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

class InstanceLockTest : public testing::Test {
 protected:
  InstanceLock::State tryLock() const { return InstanceLock(path).state(); }
  test::TemporaryFolder folder;
  const DiskPath path = folder.at("Library/Preferences/tarvo.lock");
};

TEST_F(InstanceLockTest, isHeldByOneAsLongAsItLives) {
  std::optional<InstanceLock> first(path);
  EXPECT_EQ(first->state(), InstanceLock::State::held);
  EXPECT_EQ(tryLock(), InstanceLock::State::heldByAnother);
  InstanceLock moved(std::move(*first));
  first.reset();
  EXPECT_EQ(tryLock(), InstanceLock::State::heldByAnother);
  moved = InstanceLock(folder.at("other.lock"));
  EXPECT_EQ(tryLock(), InstanceLock::State::held);
  EXPECT_EQ(tryLock(), InstanceLock::State::held);
}

TEST_F(InstanceLockTest, itsFoldersAreOpenToAll) {
  const mode_t before = ::umask(077);
  EXPECT_EQ(tryLock(), InstanceLock::State::held);
  ::umask(before);
  EXPECT_EQ(folder.mode("Library"), 0777U);
  EXPECT_EQ(folder.mode("Library/Preferences"), 0777U);
}

TEST_F(InstanceLockTest, anotherProcessIsSeenAndItsEndFreesTheLock) {
  std::array<int, 2> ready{};
  ASSERT_EQ(::pipe(ready.data()), 0);
  const pid_t child = ::fork();
  if (child == 0) {
    const InstanceLock lock(path);
    const char held = lock.state() == InstanceLock::State::held ? 'y' : 'n';
    static_cast<void>(::write(ready[1], &held, 1) + ::pause());
    ::_exit(0);
  }
  char held = 0;
  ASSERT_EQ(::read(ready[0], &held, 1), 1);
  EXPECT_EQ(held, 'y');
  EXPECT_EQ(tryLock(), InstanceLock::State::heldByAnother);
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  EXPECT_EQ(tryLock(), InstanceLock::State::held);
  ::close(ready[0]);
  ::close(ready[1]);
}

TEST_F(InstanceLockTest, programsThatAreStartedDoNotInheritIt) {
  std::optional<InstanceLock> lock(path);
  const pid_t child = ::fork();
  if (child == 0) {
    ::execlp("sleep", "sleep", "60", static_cast<char*>(nullptr));
    ::_exit(1);
  }
  lock.reset();
  // The copy that the fork made goes at the exec; wait for it.
  bool freed = false;
  for (int i = 0; i < 1000 && !freed; ++i) {
    freed = tryLock() == InstanceLock::State::held;
    if (!freed) ::usleep(10'000);
  }
  EXPECT_TRUE(freed);
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
}

TEST_F(InstanceLockTest, whereItCannotBeMadeThatIsSaid) {
  folder.write("plain", "x");
  for (const std::string& place : {folder / "plain/lock", std::string("relative")}) {
    EXPECT_EQ(InstanceLock(DiskPath(place)).state(), InstanceLock::State::unavailable) << place;
  }
}

TEST_F(InstanceLockTest, whatIsNoFileIsSaidAndALinkIsNotFollowed) {
  folder.makeFolder("folder");
  folder.write("file", "x");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
  ASSERT_EQ(::symlink((folder / "file").c_str(), (folder / "link").c_str()), 0);
  ASSERT_EQ(::symlink((folder / "nowhere").c_str(), (folder / "dead").c_str()), 0);
  for (const char* place : {"folder", "pipe", "link", "dead"}) {
    EXPECT_EQ(InstanceLock(folder.at(place)).state(), InstanceLock::State::noFile) << place;
  }
  EXPECT_EQ(::access((folder / "nowhere").c_str(), F_OK), -1);
}

TEST_F(InstanceLockTest, aFileWithContentServesAndKeepsIt) {
  folder.write("Library/Preferences/tarvo.lock", "x");
  ASSERT_EQ(::chmod(path.text().c_str(), 0444), 0);
  EXPECT_EQ(tryLock(), InstanceLock::State::held);
  EXPECT_EQ(folder.read("Library/Preferences/tarvo.lock"), "x");
}

}  // namespace
}  // namespace tarvo
