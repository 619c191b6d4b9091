// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <string>

#include "style/style_keys.h"
#include "tests/support/faulty_files.h"
#include "tests/support/scenario_files.h"
#include "tests/support/test_program.h"

// A start that puts a newly installed medical dictionary into the lists is stopped, or the disk refuses, at each of its
// writes: the settings never say that it was inserted where no list on the disk holds it.
namespace tarvo::test {
namespace {

constexpr const char *general = "General.TRet", *medical = "Tekado E.TRet", *mark = "Tekado1stE";

// Refuses the writes, numbered from 0, of which a test says so.
class NumberedWrites : public FaultyFiles {
 public:
  explicit NumberedWrites(FileService& disk) : FaultyFiles(disk) {}
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override {
    if (isRefused(count++)) return Failure{path.text(), Attempt::write, std::make_error_code(std::errc::io_error)};
    return FaultyFiles::replace(path, bytes, keeping);
  }
  std::function<bool(int number)> isRefused = [](int) { return false; };
  int count = 0;
};

class MedicalMarks : public testing::Test {
 protected:
  MedicalMarks() {
    test.root.write("m/te", "");
    for (const char* name : {general, medical}) test.root.write(std::string(TestProgram::technical) + "EJ/" + name, "");
    makeHome();
  }
  // A home as the user left it before the dictionary was installed.
  void makeHome() {
    std::filesystem::remove_all(test.root / "Users");
    Dictionary ej, je, style, selection, root;
    ej.set(keyNameTD, Array{general});
    style.set(keyNameName, "Standard");
    style.set(keyNameEJ, ej);
    style.set(keyNameJE, je);
    selection.set("MG", 0);
    root.set(keyNameStyle, Array{style});
    root.set(keyNameSelection, selection);
    test.writeStyles(root);
  }
  // Starts, edits an option and quits; or only starts, as a run that is killed then.
  void run(const std::function<void(Program&)>& further = {}) {
    Program program(test.product->services(files, test.engine, test.runLoop, test.panels, test.host, test.workspace));
    ASSERT_TRUE(program.start());
    if (further) further(program);
  }
  static void editAndQuit(Program& program) {
    program.interface().options.indexPopups.front().userChoose(1);
    program.quit();
  }
  long timesInTheList() const {
    const Dictionary root = test.stylesOnDisk();
    const Dictionary& style = *root.array(keyNameStyle)->front().dictionary();
    const Array& list = *style.dictionary(keyNameEJ)->array(keyNameTD);
    return std::ranges::count(list, PropertyList(medical));
  }
  bool isMarked() const { return test.defaultsOnDisk().contains(mark); }

  TestProgram test{{.strings = {"none", scenarioFolder() + "/fixtures/texts/medical-names.strings"}}};
  NumberedWrites files{test.product->files()};
};

TEST_F(MedicalMarks, goToTheDiskAfterTheStyles) {
  run();
  EXPECT_EQ(timesInTheList(), 1);
  EXPECT_TRUE(isMarked());
}

TEST_F(MedicalMarks, followTheStylesWhereverAStartIsStopped) {
  run(editAndQuit);
  const int writes = files.count;
  ASSERT_GT(writes, 3);
  for (const bool once : {false, true}) {
    for (int number = 0; number < writes; ++number) {
      SCOPED_TRACE(std::to_string(number) + (once ? " is refused" : " and all that follow are refused"));
      makeHome();
      files.count = 0;
      files.isRefused = [number, once](int present) { return once ? present == number : present >= number; };
      run(editAndQuit);
      EXPECT_TRUE(!isMarked() || timesInTheList() == 1);
      files.isRefused = [](int) { return false; };
      run();
      EXPECT_EQ(timesInTheList(), 1);
      EXPECT_TRUE(isMarked());
    }
  }
}

}  // namespace
}  // namespace tarvo::test
