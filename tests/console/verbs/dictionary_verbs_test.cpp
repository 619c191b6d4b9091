// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>

#include "platform/posix/instance_lock.h"
#include "tests/console/verbs/dictionary_verb_test.h"

// The verbs on dictionary lists, as an administrator meets them.
namespace tarvo::test {
namespace {

TEST_F(DictionaryVerbs, theLoadedOnesAreListedInOrderThenTheOthers) {
  const ToolResult result = run({"dictionaries", "3", "ej"});
  EXPECT_EQ(result.out, "1  b.TRet\n2  a.TRet\n-  c.TRet\n-  d.TRet\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(lists(3, "je"), "{\"available\":[\"j1.TRet\",\"j3.TRet\"],\"loaded\":[\"j2.TRet\"],\"missing\":[]}\n");
  EXPECT_EQ(lists(1, "ej"),
            "{\"available\":[\"a.TRet\",\"b.TRet\",\"c.TRet\",\"d.TRet\"],\"loaded\":[],\"missing\":[]}\n");
}

TEST_F(DictionaryVerbs, vanishedOnesAreNotListed) {
  std::filesystem::remove(root_.folder() / (technical + std::string("EJ/b.TRet")));
  EXPECT_EQ(run({"dictionaries", "0", "ej"}).out, "1  a.TRet\n2  c.TRet\n-  d.TRet\n");
  EXPECT_EQ(lists(0, "ej"),
            "{\"available\":[\"d.TRet\"],\"loaded\":[\"a.TRet\",\"c.TRet\"],\"missing\":[\"b.TRet\"]}\n");
}

TEST_F(DictionaryVerbs, listingOnlyReads) {
  const auto before = tree();
  run({"dictionaries", "0", "ej"});
  run({"dictionaries", "3", "je", "--json"});
  EXPECT_EQ(tree(), before);
}

TEST_F(DictionaryVerbs, listingAStyleThatIsNotThere) {
  const ToolResult result = run({"dictionaries", "4", "ej"});
  EXPECT_EQ(result.err, told("4", noSuchStyle));
  EXPECT_EQ(result.status, 1);
  std::filesystem::remove(root_.home() + "/" + styleFile);
  EXPECT_EQ(run({"dictionaries", "0", "ej"}).status, 1);
}

TEST_F(DictionaryVerbs, addedOnesFollowInTheOrderOfThePicker) {
  expectDone({"dictionary", "3", "ej", "add", "D.TRET", "c.TRet"});
  EXPECT_EQ(lists(3, "ej"),
            "{\"available\":[],\"loaded\":[\"b.TRet\",\"a.TRet\",\"c.TRet\",\"d.TRet\"],\"missing\":[]}\n");
  EXPECT_NE(style(3).find("\"TD\":[\"b.TRet\",\"a.TRet\",\"c.TRet\",\"d.TRet\"],\"UD\":[\"u.eud2\"]"),
            std::string::npos);
}

TEST_F(DictionaryVerbs, whatIsLoadedStaysInItsPlaceBesideAFileOfTheSameNameInOtherCase) {
  put("EJ/B.TRET");
  const std::string before = lists(3, "ej");
  EXPECT_EQ(run({"dictionary", "add", "3", "ej", "b.TRet"}).out, "already\n");
  EXPECT_EQ(lists(3, "ej"), before);
}

TEST_F(DictionaryVerbs, theChoiceOfTheStyleEndsAsItBegan) {
  expectDone({"dictionary", "3", "je", "add", "j1.TRet"});
  EXPECT_EQ(run({"styles"}).out, "0  NomalStyle  MG\n1  Alpha\n2  (divider)\n3  Beta        QB\n");
  EXPECT_EQ(lists(0, "je"), "{\"available\":[\"j3.TRet\"],\"loaded\":[\"j1.TRet\",\"j2.TRet\"],\"missing\":[]}\n");
}

TEST_F(DictionaryVerbs, aListTakesEightAndNoMore) {
  for (const char* name : {"EJ/e.TRet", "EJ/f.TRet", "EJ/g.TRet", "EJ/h.TRet", "EJ/i.TRet"}) put(name);
  const std::string parts =
      "the list would be too long; a style uses up to 8 technical dictionaries in each direction; "
      "add fewer, or remove some first";
  expectRefused({"dictionary", "add", "0", "ej", "d.TRet", "e.TRet", "f.TRet", "g.TRet", "h.TRet", "i.TRet"},
                "NomalStyle", parts);
  EXPECT_NE(lists(0, "ej").find("\"loaded\":[\"a.TRet\",\"b.TRet\",\"c.TRet\"]"), std::string::npos);
  expectDone({"dictionary", "add", "0", "ej", "d.TRet", "e.TRet", "f.TRet", "g.TRet", "h.TRet"});
  expectRefused({"dictionary", "add", "0", "ej", "i.TRet"}, "NomalStyle", parts);
}

TEST_F(DictionaryVerbs, namesThatCannotBeAddedChangeNothing) {
  expectRefused({"dictionary", "add", "0", "ej", "d.TRet", "x.TRet"}, "x.TRet", unknown);
  expectRefused({"dictionary", "add", "0", "ej", "j3.TRet"}, "j3.TRet", unknown);
}

TEST_F(DictionaryVerbs, aNameThatNoStyleFileCanHoldIsNotListedButToldByTheDoctorAndRefused) {
  for (const std::string name : {"x\x01.TRet", "y\xFF.TRet"}) {
    put("EJ/" + name);
    EXPECT_EQ(lists(3, "ej").find(name.substr(0, 1)), std::string::npos);
    const std::string shown = name[0] == 'x' ? "x\\x01.TRet" : "y\\xFF.TRet";
    EXPECT_NE(run({"doctor"}).out.find(shown + "  a style file cannot hold its name: rename it\n"), std::string::npos);
    expectRefused({"dictionary", "add", "3", "ej", name}, shown,
                  "cannot be added; a style file cannot hold every character of its name; rename the file");
  }
}

TEST_F(DictionaryVerbs, someAreRemoved) {
  expectDone({"dictionary", "remove", "0", "ej", "B.TRET"});
  EXPECT_NE(style(0).find("\"TD\":[\"a.TRet\",\"c.TRet\"]"), std::string::npos);
  expectDone({"dictionary", "remove", "0", "ej", "c.TRet", "a.TRet"});
  EXPECT_EQ(style(0).find("\"TD\":[\"a"), std::string::npos);
  expectDone({"dictionary", "remove", "3", "je", "j2.TRet"});
  EXPECT_EQ(style(3).find("j2.TRet"), std::string::npos);
  EXPECT_EQ(run({"dictionary", "remove", "3", "je", "j2.TRet"}).out, "already\n");
  expectRefused({"dictionary", "remove", "3", "je", "x.TRet"}, "x.TRet", unknown);
}

TEST_F(DictionaryVerbs, namesWithoutAFileAreToldWhenAnEditDropsThem) {
  std::filesystem::remove(root_.folder() / (technical + std::string("EJ/b.TRet")));
  const ToolResult result = run({"dictionary", "add", "0", "ej", "d.TRet"});
  EXPECT_EQ(result.err,
            told("b.TRet", "is not in the list any more; its file is gone; put the file back and add it again") +
                told(stylePath(),
                     "English to Japanese: no longer on this disk, so taken out when its style is shown: b.TRet"))
      << "another style names it too";
  EXPECT_EQ(result.status, 0);
  EXPECT_NE(style(0).find("\"TD\":[\"a.TRet\",\"c.TRet\",\"d.TRet\"]"), std::string::npos);
}

TEST_F(DictionaryVerbs, oneWithoutAFileIsRemovedAndTheOthersStayWhenTheWholeFolderIsAway) {
  std::filesystem::remove_all(root_.folder() / (technical + std::string("EJ")));
  expectDone({"dictionary", "remove", "0", "ej", "b.TRet"});
  EXPECT_NE(style(0).find("\"TD\":[\"a.TRet\",\"c.TRet\"]"), std::string::npos);
}

TEST_F(DictionaryVerbs, oneIsMovedToAPositionCountedFromOne) {
  const std::pair<const char*, const char*> moves[] = {{"3", "[\"b.TRet\",\"c.TRet\",\"a.TRet\"]"},
                                                       {"1", "[\"a.TRet\",\"b.TRet\",\"c.TRet\"]"},
                                                       {"2", "[\"b.TRet\",\"a.TRet\",\"c.TRet\"]"}};
  for (const auto& [position, list] : moves) {
    expectDone({"dictionary", "move", "0", "ej", "a.TRet", position});
    EXPECT_NE(style(0).find(std::string("\"TD\":") + list), std::string::npos) << style(0);
  }
  for (const char* position : {"0", "4"}) {
    expectRefused({"dictionary", "move", "0", "ej", "a.TRet", position}, "NomalStyle",
                  std::string("the list has no position ") + position +
                      "; positions count the loaded dictionaries from 1; tarvoctl dictionaries lists them");
  }
  expectRefused({"dictionary", "move", "0", "ej", "d.TRet", "1"}, "d.TRet", notLoaded);
  expectRefused({"dictionary", "move", "0", "ej", "x.TRet", "1"}, "x.TRet", unknown);
}

TEST_F(DictionaryVerbs, theVerbMayStandBehindTheListToo) {
  expectDone({"dictionary", "3", "ej", "add", "c.TRet"});
  expectDone({"dictionary", "Beta", "ej", "move", "c.TRet", "1"});
  expectDone({"dictionary", "name:Beta", "ej", "remove", "a.TRet"});
  EXPECT_EQ(run({"dictionaries", "B", "ej"}).out, "1  c.TRet\n2  b.TRet\n-  a.TRet\n-  d.TRet\n");
}

TEST_F(DictionaryVerbs, stylesThatCannotBeEdited) {
  expectRefused({"dictionary", "remove", "9", "ej", "a.TRet"}, "9", noSuchStyle);
  expectRefused({"dictionary", "add", "2", "ej", "a.TRet"}, "2", isDividerTold);
  putStyles("no-je.plist");
  expectRefused({"dictionary", "add", "1", "je", "j1.TRet"}, "Alpha",
                "the style is damaged; it lacks the direction JE; import a style in its place");
}

TEST_F(DictionaryVerbs, aStyleFileWithoutARememberedChoiceIsEditedAll) {
  putStyles("no-selection.plist");
  expectDone({"dictionary", "3", "ej", "add", "c.TRet"});
  EXPECT_NE(style(3).find("\"c.TRet\"]"), std::string::npos);
}

TEST_F(DictionaryVerbs, theLockIsNeededToChangeAndNotToList) {
  const InstanceLock lock(DiskPath(root_.home() + "/Library/Preferences/com.wordhaven.TarvoManager.lock"));
  ASSERT_EQ(lock.state(), InstanceLock::State::held);
  for (const std::vector<std::string>& words :
       {std::vector<std::string>{"dictionary", "0", "ej", "add", "d.TRet"}, {"new", "ej", "user", "N"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.err, lockedLine());
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

// A link that leads to itself is there and can be listed by nobody, whoever runs the test.
TEST_F(DictionaryVerbs, aFolderThatCannotBeReadIsNoEmptyOne) {
  const std::filesystem::path folder = root_.folder() / (technical + std::string("EJ"));
  std::filesystem::rename(folder, folder.string() + ".away");
  std::filesystem::create_directory_symlink("EJ", folder);
  const std::string why = "cannot be listed; links lead round in a circle; remove one of them";
  const std::string before = root_.folder().read(std::string("root/Users/taro/") + styleFile);
  for (const std::vector<std::string>& words : {std::vector<std::string>{"dictionary", "remove", "0", "ej", "a.TRet"},
                                                {"dictionary", "add", "3", "ej", "c.TRet"},
                                                {"dictionary", "move", "0", "ej", "c.TRet", "1"},
                                                {"dictionaries", "0", "ej"}}) {
    const ToolResult result = run(words);
    EXPECT_EQ(result.out, "") << words[1];
    EXPECT_EQ(result.err, told(folder, why)) << words[1];
    EXPECT_EQ(result.status, 1) << words[1];
  }
  EXPECT_EQ(root_.folder().read(std::string("root/Users/taro/") + styleFile), before);
  expectDone({"dictionary", "remove", "0", "je", "j1.TRet"});
  EXPECT_NE(style(0).find("\"TD\":[\"a.TRet\",\"b.TRet\",\"c.TRet\"]"), std::string::npos);
}

TEST_F(DictionaryVerbs, aFileInThePlaceOfTheFolderIsNoEmptyFolder) {
  const std::string folder = std::string(technical) + "EJ";
  std::filesystem::remove_all(root_.folder() / folder);
  root_.folder().write(folder, "");
  const std::string before = style(0);
  const ToolResult result = run({"dictionary", "0", "ej", "remove", "a.TRet"});
  EXPECT_EQ(result.status, 1);
  EXPECT_NE(result.err.find("cannot be listed"), std::string::npos) << result.err;
  EXPECT_EQ(style(0), before);
}

TEST_F(DictionaryVerbs, aFolderThatIsNotThereIsAnEmptyOne) {
  std::filesystem::remove_all(root_.folder() / (std::string(technical) + "EJ"));
  const ToolResult result = run({"dictionary", "0", "ej", "remove", "a.TRet"});
  EXPECT_EQ(result.err.find("cannot be listed"), std::string::npos) << result.err;
}

}  // namespace
}  // namespace tarvo::test
