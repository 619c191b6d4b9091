// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <fstream>
#include <tuple>

#include "tests/console/verbs/dictionary_verb_test.h"

// The verb that makes an empty dictionary or memory.
namespace tarvo::test {
namespace {

class NewVerb : public DictionaryVerbs {
 protected:
  bool exists(const std::string& path) const { return root_.folder().exists(path); }
};

TEST_F(NewVerb, eachKindAndDirectionHasItsFile) {
  const std::tuple<const char*, const char*, std::string> files[] = {
      {"ej", "user", std::string(userDic) + "用語 1.eud2"},
      {"je", "user", std::string(userDic) + "用語 1.jud"},
      {"ej", "memory", std::string(userTMA) + "用語 1.etm"},
      {"je", "memory", std::string(userTMA) + "用語 1.jtm"}};
  for (const auto& [direction, kind, file] : files) {
    expectDone({"new", direction, kind, " 用語 1 "});
    EXPECT_TRUE(exists(file)) << file;
  }
}

TEST_F(NewVerb, theFileIsTheTemplatesCopyAndNoStyleNamesIt) {
  const std::string before = style(0);
  expectDone({"new", "ej", "user", "N"});
  std::ifstream stationery(TARVO_SOURCE_DIR "/resources/EJStationery.eud2", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(stationery), {}};
  EXPECT_FALSE(bytes.empty());
  EXPECT_EQ(root_.folder().read(std::string(userDic) + "N.eud2"), bytes);
  EXPECT_EQ(style(0), before);
}

TEST_F(NewVerb, noStyleIsNeededOrWritten) {
  root_.folder().write(std::string("root/Users/taro/") + styleFile, "broken");
  const ToolResult result = run({"new", "ej", "user", "N"});
  EXPECT_EQ(result.err, told(stylePath(),
                             "the styles cannot be read; it is no property list; mend the file, or bring earlier "
                             "styles back with restore"));
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(root_.folder().read(std::string("root/Users/taro/") + styleFile), "broken");
  EXPECT_FALSE(exists("root/Users/taro/Library/Preferences/Wordhaven/TarvoManager.txt"));
  EXPECT_FALSE(exists("root/Users/taro/Library/Application Support/Wordhaven/TarvoEngine.plist"));
}

TEST_F(NewVerb, refusedNamesMakeNoFile) {
  root_.folder().write(std::string(userDic) + "there.eud2", "old");
  const std::string longName = "あいうえおかきくけこさしすせそた";
  const std::tuple<const char*, std::string, const char*> names[] = {
      {"user", " ", "nothing but white space is in it; write a name"},
      {"memory", "", "nothing but white space is in it; write a name"},
      {"user", "a.b", "it holds one of . : / \\; leave these characters out"},
      {"user", "a\\b", "it holds one of . : / \\; leave these characters out"},
      {"user", longName, "it has more than 30 half-width or 15 full-width characters; shorten it"},
      {"user", "there", "a file of this name is there; choose another name"}};
  for (const auto& [kind, name, reason] : names) {
    const ToolResult result = runInEnglish({"new", "ej", kind, name});
    EXPECT_EQ(result.err, told(name == " " ? "" : name, std::string("cannot be the name; ") + reason));
    EXPECT_EQ(result.status, 1);
  }
  EXPECT_EQ(root_.folder().names(userDic), std::vector<std::string>{"there.eud2"});
  EXPECT_TRUE(root_.folder().names(userTMA).empty());
}

TEST_F(NewVerb, aSixthIsMadeLikeTheOthersBecauseEachRunCountsAnew) {
  for (const char* name : {"1", "2", "3", "4", "5", "6"}) EXPECT_EQ(run({"new", "je", "memory", name}).status, 0);
  EXPECT_TRUE(exists(std::string(userTMA) + "6.jtm"));
}

TEST_F(NewVerb, aMissingTemplateIsTold) {
  root_.folder().makeFolder("resources");
  for (const std::string name : {"WordhavenPaths.plist", "DefaultAddin.plist"}) {
    std::filesystem::copy_file(TARVO_SOURCE_DIR "/resources/" + name, root_.folder() / ("resources/" + name));
  }
  const ToolResult result = run({"--resources", root_.folder() / "resources", "new", "je", "user", "N"});
  EXPECT_EQ(result.err, told(root_.folder() / "resources/JEStationery.jud",
                             "cannot be copied; the product lacks it; install TarvoEiwa again"));
  EXPECT_EQ(result.status, 1);
  EXPECT_TRUE(root_.folder().names(userDic).empty());
}

TEST_F(NewVerb, aPlaceThatTakesNoFileIsTold) {
  root_.folder().write(std::string(userDic).substr(0, std::string(userDic).size() - 1), "a file");
  const ToolResult result = run({"new", "ej", "user", "N"});
  EXPECT_EQ(result.err, told(root_.home() + "/Library/Application Support/Wordhaven/UserDic/N.eud2",
                             "cannot be made; what should be a folder is none"));
  EXPECT_EQ(result.status, 1);
}

TEST_F(NewVerb, aPlaceThatCannotBeLookedAtIsToldAndNoNameIsCalledTaken) {
  const std::string folder = root_.root() + "/Users/taro/Library/Application Support/Wordhaven/UserDic";
  std::filesystem::create_directories(std::filesystem::path(folder).parent_path());
  std::filesystem::create_symlink("UserDic", folder);
  const ToolResult result = runInEnglish({"new", "ej", "user", "N"});
  EXPECT_EQ(result.err.substr(0, result.err.find(';')), "tarvoctl: " + folder + "/N.eud2: cannot be looked at");
  EXPECT_EQ(result.status, 1);
}

}  // namespace
}  // namespace tarvo::test
