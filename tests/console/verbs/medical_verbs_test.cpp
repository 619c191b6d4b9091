// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/machine_texts.h"
#include "tests/console/verbs/verb_test.h"

// Medical dictionaries that join with the load of a verb.
namespace tarvo::test {
namespace {

// A medical dictionary that was installed meanwhile joins S0 with the next load.
class MedicalMeanwhile : public VerbTest {
 protected:
  static constexpr const char* settings = "root/Users/taro/Library/Preferences/com.wordhaven.TarvoManager.plist";
  MedicalMeanwhile() {
    putStyles("medical-pair.plist");
    run({"style", "set", "0", "Opt1=1"}, texts_);
    run({"style", "export", "0", root_.home() + "/S0.whstyle"}, texts_);
    root_.folder().write("root/m/ce", "data");
    for (const char* name : {"cwl.TRet", "cwla.TRet"}) root_.folder().write(std::string(technical) + "EJ/" + name, "");
  }
  bool isMarked() const { return root_.folder().read(settings).find("Corwell1stE") != std::string::npos; }
  bool hasDictionary() const { return style(0).find("\"cwl.TRet\"") != std::string::npos; }
  const std::vector<std::string> texts_{"--strings", "none", "--strings", "fixtures/texts/medical-names.strings"};
};

TEST_F(MedicalMeanwhile, isNotCountedAsJoinedWhereAnImportTookItsPlace) {
  ASSERT_EQ(run({"style", "import", "0", root_.home() + "/S0.whstyle"}, texts_).status, 0);
  EXPECT_FALSE(isMarked());
  ASSERT_EQ(run({"style", "set", "2", "Opt1=1"}, texts_).status, 0);
  EXPECT_TRUE(isMarked());
  EXPECT_TRUE(hasDictionary());
}

TEST_F(MedicalMeanwhile, staysInItsListWhereTheTableOfTheMachineCannotBeRead) {
  ASSERT_EQ(run({"style", "set", "2", "Opt1=1"}, texts_).status, 0);
  const std::string before = style(0);
  root_.folder().write(std::string("root") + machineTexts, "damaged");
  const ToolResult result = run({"dictionary", "remove", "0", "ej", "cwla.TRet"});
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.err.find("Local.strings"), std::string::npos) << result.err;
  EXPECT_EQ(style(0), before);
  EXPECT_TRUE(hasDictionary());
}

TEST_F(MedicalMeanwhile, isNotCountedAsJoinedWhereAnEarlierStyleTookItsPlace) {
  const std::string id = run({"history"}).out.substr(0, 23);
  ASSERT_EQ(run({"restore", id, "S0"}, texts_).status, 0);
  EXPECT_FALSE(isMarked());
  ASSERT_EQ(run({"style", "set", "2", "Opt1=1"}, texts_).status, 0);
  EXPECT_TRUE(isMarked());
  EXPECT_TRUE(hasDictionary());
}

}  // namespace
}  // namespace tarvo::test
