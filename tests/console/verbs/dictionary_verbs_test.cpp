// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <fstream>
#include <tuple>

#include "platform/posix/instance_lock.h"
#include "tests/console/verbs/verb_test.h"

// The verbs on dictionary lists, as an administrator meets them.
namespace tarvo::test {
namespace {

class DictionaryVerbs : public VerbTest {
 protected:
  DictionaryVerbs() { putStyles("root4.plist"); }
  void put(const std::string& name) const { root_.folder().write(technical + name, ""); }
  std::string lists(int index, const std::string& direction) const {
    return run({"dictionaries", std::to_string(index), direction, "--json"}).out;
  }
  // Runs a verb that has to end well and say nothing.
  void expectDone(const std::vector<std::string>& words) const {
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.status, 0);
  }
  void expectUsage(const std::vector<std::string>& words, const std::string& reason) const {
    const auto before = tree();
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, reason + "\n");
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(tree(), before) << reason;
  }
};

TEST_F(DictionaryVerbs, theLoadedOnesAreListedInOrderThenTheOthers) {
  const ToolResult result = run({"dictionaries", "3", "ej"});
  EXPECT_EQ(result.out, "1  b.TRet\n2  a.TRet\n-  c.TRet\n-  d.TRet\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(lists(3, "je"), "{\"available\":[\"j1.TRet\",\"j3.TRet\"],\"loaded\":[\"j2.TRet\"]}\n");
  EXPECT_EQ(lists(1, "ej"), "{\"available\":[\"a.TRet\",\"b.TRet\",\"c.TRet\",\"d.TRet\"],\"loaded\":[]}\n");
}

TEST_F(DictionaryVerbs, vanishedOnesAreNotListed) {
  std::filesystem::remove(root_.folder() / (technical + std::string("EJ/b.TRet")));
  EXPECT_EQ(run({"dictionaries", "0", "ej"}).out, "1  a.TRet\n2  c.TRet\n-  d.TRet\n");
}

TEST_F(DictionaryVerbs, listingOnlyReads) {
  const auto before = tree();
  run({"dictionaries", "0", "ej"});
  run({"dictionaries", "3", "je", "--json"});
  EXPECT_EQ(tree(), before);
}

TEST_F(DictionaryVerbs, listingAStyleThatIsNotThere) {
  for (const char* index : {"4", "-1"}) {
    const ToolResult result = run({"dictionaries", "--", index, "ej"});
    EXPECT_EQ(result.err, std::string("there is no style ") + index + "\n");
    EXPECT_EQ(result.status, 2);
  }
  std::filesystem::remove(root_.home() + "/" + styleFile);
  EXPECT_EQ(run({"dictionaries", "0", "ej"}).err, "there is no style file that can be read\n");
  EXPECT_EQ(run({"dictionaries", "0", "ej"}).status, 1);
}

TEST_F(DictionaryVerbs, addedOnesFollowInTheOrderOfThePicker) {
  expectDone({"dictionary", "3", "ej", "add", "D.TRET", "c.TRet"});
  EXPECT_EQ(lists(3, "ej"), "{\"available\":[],\"loaded\":[\"b.TRet\",\"a.TRet\",\"c.TRet\",\"d.TRet\"]}\n");
  EXPECT_NE(style(3).find("\"TD\":[\"b.TRet\",\"a.TRet\",\"c.TRet\",\"d.TRet\"],\"UD\":[\"u.eud2\"]"),
            std::string::npos);
}

TEST_F(DictionaryVerbs, theChoiceOfTheStyleEndsAsItBegan) {
  expectDone({"dictionary", "3", "je", "add", "j1.TRet"});
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle  MG\n1  Alpha\n2  (divider)\n3  Beta        QB\n");
  EXPECT_EQ(lists(0, "je"), "{\"available\":[\"j3.TRet\"],\"loaded\":[\"j1.TRet\",\"j2.TRet\"]}\n");
}

TEST_F(DictionaryVerbs, aListTakesEightAndNoMore) {
  for (const char* name : {"EJ/e.TRet", "EJ/f.TRet", "EJ/g.TRet", "EJ/h.TRet", "EJ/i.TRet"}) put(name);
  const ToolResult refused =
      runInEnglish({"dictionary", "0", "ej", "add", "d.TRet", "e.TRet", "f.TRet", "g.TRet", "h.TRet", "i.TRet"});
  const std::string reason =
      "Too many technical dictionaries: A style can use up to 8 technical dictionaries in each direction. Select "
      "fewer, "
      "or remove some from the style first.\n";
  EXPECT_EQ(refused.err, reason);
  EXPECT_EQ(refused.status, 1);
  EXPECT_NE(lists(0, "ej").find("\"loaded\":[\"a.TRet\",\"b.TRet\",\"c.TRet\"]"), std::string::npos);
  expectDone({"dictionary", "0", "ej", "add", "d.TRet", "e.TRet", "f.TRet", "g.TRet", "h.TRet"});
  const ToolResult full = runInEnglish({"dictionary", "0", "ej", "add", "i.TRet"});
  EXPECT_EQ(full.err, reason);
  EXPECT_EQ(full.status, 1);
}

TEST_F(DictionaryVerbs, namesThatCannotBeAddedChangeNothing) {
  expectUsage({"dictionary", "0", "ej", "add", "d.TRet", "x.TRet"}, "there is no dictionary x.TRet");
  expectUsage({"dictionary", "0", "ej", "add", "A.tret"}, "A.tret is loaded already");
  expectUsage({"dictionary", "0", "ej", "add", "j3.TRet"}, "there is no dictionary j3.TRet");
}

TEST_F(DictionaryVerbs, oneIsRemoved) {
  expectDone({"dictionary", "0", "ej", "remove", "B.TRET"});
  EXPECT_NE(style(0).find("\"TD\":[\"a.TRet\",\"c.TRet\"]"), std::string::npos);
  expectDone({"dictionary", "3", "je", "remove", "j2.TRet"});
  EXPECT_EQ(style(3).find("j2.TRet"), std::string::npos);
  expectUsage({"dictionary", "3", "je", "remove", "j2.TRet"}, "j2.TRet is not loaded");
}

TEST_F(DictionaryVerbs, oneIsMovedToAPositionCountedFromOne) {
  const std::pair<const char*, const char*> moves[] = {{"3", "[\"b.TRet\",\"c.TRet\",\"a.TRet\"]"},
                                                       {"1", "[\"a.TRet\",\"b.TRet\",\"c.TRet\"]"},
                                                       {"2", "[\"b.TRet\",\"a.TRet\",\"c.TRet\"]"},
                                                       {"2", "[\"b.TRet\",\"a.TRet\",\"c.TRet\"]"}};
  for (const auto& [position, list] : moves) {
    expectDone({"dictionary", "0", "ej", "move", "a.TRet", position});
    EXPECT_NE(style(0).find(std::string("\"TD\":") + list), std::string::npos) << style(0);
  }
  for (const char* position : {"0", "4"}) {
    expectUsage({"dictionary", "0", "ej", "move", "a.TRet", position},
                std::string("the list has no position ") + position);
  }
  expectUsage({"dictionary", "0", "ej", "move", "d.TRet", "1"}, "d.TRet is not loaded");
}

TEST_F(DictionaryVerbs, stylesThatCannotBeEdited) {
  expectUsage({"dictionary", "9", "ej", "remove", "a.TRet"}, "there is no style 9");
  expectUsage({"dictionary", "2", "ej", "add", "a.TRet"}, "style 2 is the divider");
  putStyles("no-je.plist");
  const auto before = tree();
  const ToolResult damaged = run({"dictionary", "1", "je", "add", "j1.TRet"});
  EXPECT_EQ(damaged.err, "style 1 is damaged: it lacks the direction of this list\n");
  EXPECT_EQ(damaged.status, 1);
  EXPECT_EQ(tree(), before);
}

TEST_F(DictionaryVerbs, aStyleFileWithoutARememberedChoiceIsEditedAll) {
  putStyles("no-selection.plist");
  expectDone({"dictionary", "3", "ej", "add", "c.TRet"});
  EXPECT_NE(style(3).find("\"c.TRet\"]"), std::string::npos);
}

TEST_F(DictionaryVerbs, theLockIsNeededToChangeAndNotToList) {
  const InstanceLock lock(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock");
  ASSERT_EQ(lock.state(), InstanceLock::State::held);
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"dictionary", "0", "ej", "add", "d.TRet"}, {"new", "ej", "user", "N"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.err, "another manager works on these files\n");
    EXPECT_EQ(result.status, 3);
  }
  EXPECT_EQ(run({"dictionaries", "0", "ej"}).status, 0);
}

TEST_F(DictionaryVerbs, wordsAreChecked) {
  for (const std::vector<std::string>& words : {std::vector<std::string>{"dictionaries"},
                                                {"dictionaries", "0"},
                                                {"dictionaries", "0", "EJ"},
                                                {"dictionary", "0", "ej"},
                                                {"dictionary", "0", "ej", "add"},
                                                {"dictionary", "0", "xx", "add", "a.TRet"},
                                                {"dictionary", "0", "ej", "move", "a.TRet"},
                                                {"dictionary", "0", "ej", "move", "a.TRet", "first"},
                                                {"new"},
                                                {"new", "ej", "user"},
                                                {"new", "ej", "glossary", "N"},
                                                {"new", "xx", "user", "N"}}) {
    EXPECT_EQ(run(words).status, 2) << testing::PrintToString(words);
  }
}

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

TEST_F(NewVerb, refusedNamesMakeNoFile) {
  root_.folder().write(std::string(userDic) + "there.eud2", "old");
  const std::tuple<const char*, const char*, const char*> names[] = {
      {"user", " ", "No name: Enter a name.\n"},
      {"memory", "", "The memory has no name: Enter a name.\n"},
      {"user", "a.b",
       "The name cannot be used: The name of a user dictionary must not contain any of these characters: . : / \\\n"},
      {"user", "あいうえおかきくけこさしすせそた",
       "The name is too long: The name of a user dictionary can have up to 30 half-width or 15 full-width "
       "characters.\n"},
      {"user", "there",
       "\"there.eud2\" already exists: The folder of user dictionaries holds a file of this name. Choose another "
       "name.\n"}};
  for (const auto& [kind, name, reason] : names) {
    const ToolResult result = runInEnglish({"new", "ej", kind, name});
    EXPECT_EQ(result.err, reason);
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
  EXPECT_EQ(result.err, "no file was made: " + (root_.folder() / "resources/JEStationery.jud") +
                            ": Failure.copy; Cause.missingResource\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_TRUE(root_.folder().names(userDic).empty());
}

TEST_F(NewVerb, aPlaceThatTakesNoFileIsTold) {
  root_.folder().write(std::string(userDic).substr(0, std::string(userDic).size() - 1), "a file");
  const ToolResult result = run({"new", "ej", "user", "N"});
  EXPECT_EQ(result.err, "no file was made: " + root_.home() +
                            "/Library/Application Support/Wordhaven/UserDic/N.eud2: Failure.create; Cause.noFolder\n");
  EXPECT_EQ(result.status, 1);
}

}  // namespace
}  // namespace tarvo::test
