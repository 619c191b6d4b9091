// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>

#include "platform/plist/plist_writer.h"
#include "tests/style/exchange_world.h"
#include "tests/support/faulty_files.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

namespace tarvo::test {
namespace {

// The disk, with a list of what was read and written.
class WatchedFiles : public FaultyFiles {
 public:
  using FaultyFiles::FaultyFiles;
  Result<std::string> read(const DiskPath& path) const override {
    reads.push_back(path.text());
    return FaultyFiles::read(path);
  }
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override {
    writes.push_back(path.text());
    return FaultyFiles::replace(path, bytes, keeping);
  }
  mutable std::vector<std::string> reads;
  std::vector<std::string> writes;
};

TEST(StyleFile, isReadOnceAndNotWrittenAtTheEnd) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  test.root.write("in.whstyle", writePropertyList(importedStyle()));
  test.engine.probes = {true, false};
  WatchedFiles files(test.product->files());
  Program program(test.product->services(files, test.engine, test.runLoop, test.panels, test.host, test.workspace));
  ASSERT_TRUE(program.start());
  Interface& interface = program.interface();
  const std::string path = test.root / test.inHome(TestProgram::stylePath);
  const auto uses = [&path](const std::vector<std::string>& paths) {
    return std::count(paths.begin(), paths.end(), path);
  };
  const auto writesAtStart = uses(files.writes);
  for (int i = 0; i < 4; ++i) {
    interface.style.stylePopup.userChoose(i % 2 == 0 ? 3 : 1);
    interface.options.indexPopups[static_cast<std::size_t>(i)].userChoose(i % 2);
    interface.naming.StyleNameEditButton.userPress();
    interface.naming.styleNameField.userType("Name " + std::to_string(i));
    interface.naming.snOKButton.userPress();
    program.styles().readImportStyle(test.root.at("in.whstyle"));
    program.styles().handleCallerCode(i % 2 == 0 ? "tQB8" : "tMG8");
  }
  EXPECT_GE(uses(files.writes) - writesAtStart, 20);
  files.writes.clear();
  program.quit();
  EXPECT_EQ(uses(files.writes), 0);
  EXPECT_EQ(uses(files.reads), 1);
}

}  // namespace
}  // namespace tarvo::test
