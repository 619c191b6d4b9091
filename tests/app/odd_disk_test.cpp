// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "platform/plist/plist_writer.h"
#include "style/style_keys.h"
#include "tests/support/sample_styles.h"
#include "tests/support/test_program.h"

// What a start meets on a disk that is not as it should be, where a script cannot prepare it.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

constexpr const char* defaultsPath = "Library/Preferences/com.wordhaven.TarvoManager.plist";

void makePipe(const TestProgram& test, const std::string& rest) {
  fs::create_directories(fs::path(test.root / rest).parent_path());
  ASSERT_EQ(::mkfifo((test.root / rest).c_str(), 0666), 0);
}

bool isPipe(const TestProgram& test, const std::string& rest) { return fs::is_fifo(test.root / rest); }

void writeSeed(const TestProgram& test) {
  test.root.write(std::string(gAppSupportStylePlist).substr(1), writePropertyList(sampleRoot()));
}

TEST(OddDisk, aPipeInThePlaceOfTheStyleFileNeitherBlocksNorIsReplaced) {
  TestProgram test;
  makePipe(test, test.inHome(TestProgram::stylePath));
  writeSeed(test);
  ASSERT_TRUE(test.program().start());
  test.interface().style.stylePopup.userChoose(3);
  EXPECT_FALSE(test.program().rooms().store.isSaved());
  EXPECT_EQ(*test.program().rooms().store.getStyleAtIndex(3)->string("Name"), "Beta");
  test.program().quit();
  EXPECT_TRUE(isPipe(test, test.inHome(TestProgram::stylePath)));
  EXPECT_EQ(test.root.names(test.inHome("Library/Preferences/Wordhaven")),
            (std::vector<std::string>{"TarvoManager.txt", "TarvoStyle2009.plist"}));
}

TEST(OddDisk, pipesInAllOtherPlacesDoNotBlockAStart) {
  TestProgram test;
  test.writeStyles(sampleRoot());
  for (const std::string& rest :
       {test.inHome(defaultsPath), test.inHome("Library/Preferences/Wordhaven/TarvoManager.txt"),
        std::string("System/Library/CoreServices/SystemVersion.plist"),
        std::string(TestProgram::technical) + "EJ/pipe.TRet", test.inHome("Library/Scripts")}) {
    makePipe(test, rest);
  }
  ASSERT_TRUE(test.program().start());
  test.program().quit();
  EXPECT_TRUE(isPipe(test, test.inHome(defaultsPath)));
  EXPECT_TRUE(isPipe(test, test.inHome("Library/Preferences/Wordhaven/TarvoManager.txt")));
}

TEST(OddDisk, aPipeInThePlaceOfTheProductsStylesEndsTheStart) {
  TestProgram test;
  makePipe(test, std::string(gAppSupportStylePlist).substr(1));
  EXPECT_FALSE(test.program().start());
  EXPECT_EQ(test.log, (Log{"beep", "alert ApplicationCautionHeader / ApplicationCautionMessage", "terminated"}));
}

TEST(OddDisk, aStyleFileBehindALinkIsChangedThereAndStaysALink) {
  TestProgram test;
  test.root.write("elsewhere/styles.plist", writePropertyList(sampleRoot()));
  const fs::path link = test.root / test.inHome(TestProgram::stylePath);
  fs::create_directories(link.parent_path());
  fs::create_symlink(test.root / "elsewhere/styles.plist", link);
  ASSERT_TRUE(test.program().start());
  test.interface().style.stylePopup.userChoose(1);
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(test.stylesOnDisk().dictionary("Selection")->integerValue("MG"), 1);
  EXPECT_EQ(test.root.names("elsewhere"), std::vector<std::string>{"styles.plist"});
}

TEST(OddDisk, aStyleFileOfNothingButDepthIsKeptBeside) {
  TestProgram test;
  std::string deep = "<plist>";
  for (int i = 0; i < 100'000; ++i) deep += "<array>";
  test.root.write(test.inHome(TestProgram::stylePath), deep);
  writeSeed(test);
  ASSERT_TRUE(test.program().start());
  EXPECT_EQ(test.root.read(test.inHome(TestProgram::stylePath) + ".unreadable"), deep);
  EXPECT_EQ(test.stylesOnDisk(), sampleRoot());
}

TEST(OddDisk, aStartThatOnlyFillsInOptionsLeavesEveryByteAndTheTime) {
  TestProgram test;
  Dictionary root = sampleRoot();
  root.remove("Selection");
  root.array("Style")->at(1).dictionary()->dictionary("JE")->remove("TOpt2");
  test.writeStyles(root);
  const std::string path = test.inHome(TestProgram::stylePath);
  const std::string before = test.root.read(path);
  const auto longAgo = fs::file_time_type::clock::now() - std::chrono::hours(1000);
  fs::last_write_time(test.root / path, longAgo);
  ASSERT_TRUE(test.program().start());
  EXPECT_EQ(test.program().rooms().store.getStyleAtIndex(1)->dictionary("JE")->integerValue("TOpt2"), 2);
  test.program().quit();
  EXPECT_EQ(test.root.read(path), before);
  EXPECT_EQ(fs::last_write_time(test.root / path), longAgo);
}

}  // namespace
}  // namespace tarvo::test
