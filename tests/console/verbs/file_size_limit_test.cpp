// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <sys/resource.h>

#include "tests/console/verbs/verb_test.h"

// A system that lets files grow to a limit only.
namespace tarvo::test {
namespace {

// What this process and those that it starts may write to one file, in bytes, as long as this lives.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes) {
    EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &before_), 0);
    const rlimit limited{bytes, before_.rlim_max};
    EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limited), 0);
  }
  ~FileSizeLimit() { EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &before_), 0); }
  FileSizeLimit(const FileSizeLimit&) = delete;
  FileSizeLimit& operator=(const FileSizeLimit&) = delete;

 private:
  rlimit before_{};
};

using Verbs = VerbTest;

TEST_F(Verbs, stylesBeyondTheLimitAreToldAsNotStoredAndNothingIsLeftBeside) {
  putStyles("root4.plist");
  const auto before = treeButLock();
  ToolResult result;
  {
    const FileSizeLimit limit(1000);
    result = run({"style", "set", "1", "Opt2=2"});
  }
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.err.find(stylePath() + ": cannot be written; "), std::string::npos) << result.err;
  EXPECT_EQ(treeButLock(), before);
}

}  // namespace
}  // namespace tarvo::test
