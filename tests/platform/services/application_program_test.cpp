// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/application_program.h"

#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "tests/support/memory_files.h"

namespace tarvo::test {
namespace {

const std::vector<DiskPath> folders{DiskPath("/Applications"), DiskPath("/Users/taro/応用")};

class ApplicationProgram : public testing::Test {
 protected:
  void putBundle(const std::string& bundle, const PropertyList& executable, const std::string& program) {
    Dictionary information;
    information.set("CFBundleExecutable", executable);
    files_.put(bundle + "/Contents/Info.plist", writePropertyList(information));
    files_.put(bundle + "/Contents/MacOS/" + program, "");
  }
  std::string find(const std::string& name) {
    return applicationProgram(files_, folders, name).value_or(DiskPath()).text();
  }
  MemoryFiles files_;
};

TEST_F(ApplicationProgram, ofABundleIsTheOneThatItsInformationNames) {
  putBundle("/Applications/Some Editor.app", "editor", "editor");
  EXPECT_EQ(find("Some Editor.app"), "/Applications/Some Editor.app/Contents/MacOS/editor");
  EXPECT_EQ(find("Some Editor"), "");
  EXPECT_EQ(find("some editor.app"), "");
}

TEST_F(ApplicationProgram, ofABundleWithoutInformationIsCalledAsTheBundle) {
  files_.put("/Applications/Plain.app/Contents/MacOS/Plain", "");
  putBundle("/Applications/Odd.app", 7, "Odd");
  putBundle("/Applications/Path.app", "../../../../bin/sh", "Path");
  EXPECT_EQ(find("Plain.app"), "/Applications/Plain.app/Contents/MacOS/Plain");
  EXPECT_EQ(find("Odd.app"), "/Applications/Odd.app/Contents/MacOS/Odd");
  EXPECT_EQ(find("Path.app"), "/Applications/Path.app/Contents/MacOS/Path");
}

TEST_F(ApplicationProgram, isTakenFromTheFirstFolderThatHasIt) {
  putBundle("/Applications/Empty.app", "gone", "other");
  files_.put("/Users/taro/応用/Empty.app", "#!/bin/sh");
  files_.put("/Users/taro/応用/both", "");
  files_.put("/Applications/both", "");
  EXPECT_EQ(find("Empty.app"), "/Users/taro/応用/Empty.app") << "a file is a program itself";
  EXPECT_EQ(find("both"), "/Applications/both");
}

TEST_F(ApplicationProgram, isNothingForPathsAndMissingNames) {
  files_.put("/Applications/Sub/tool", "");
  for (const char* name : {"", "missing", "Sub/tool", "/Applications/Sub/tool", "../Applications/Sub/tool"}) {
    EXPECT_EQ(find(name), "") << name;
  }
}

}  // namespace
}  // namespace tarvo::test
