// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_name_checks.h"

#include <gtest/gtest.h>

#include "dict/new_dictionary_request.h"
#include "platform/controls/controls.h"
#include "tests/dict/dictionary_world.h"
#include "tests/support/fake_shell.h"

namespace tarvo::test {
namespace {

std::string times(int count, const std::string& text) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

const DictionaryNameChecks::Rules paneRules{{".", ":", "/", "\\"}, true};
const DictionaryNameChecks::Rules pickerRules{{".", ":", "/"}, false};

struct Checks : DictionaryWorld {
  explicit Checks(const DictionaryNameChecks::Rules& rules = paneRules)
      : checks(outlets.name, request, rules, {files, texts, paths, panels}) {
    for (const char* key : {"AlertClose", "NoUDNameHeader", "NoUDNameMessage", "NoUTMNameHeader", "invalidNameHeader",
                            "invalidNameUDMessage", "invalidNameUTMAMessage", "invalidNameHeader2",
                            "invalidNameUDMessage2", "tooLongNameHeader", "tooLongNameUDMessage",
                            "tooLongNameUTMAMessage", "existsDicHeader", "existsUDMessage", "existsUTMAMessage"}) {
      setText(key, "«" + std::string(key) + "»");
    }
  }
  bool passes(std::optional<DictionaryKind> kind, Direction direction, const std::string& name) {
    request.kind = kind;
    request.direction = direction;
    outlets.name.setStringValue(name);
    log.clear();
    return checks.passAll();
  }
  struct FieldOutlets : Outlets {
    FieldOutlets() : Outlets("style") {}
    TextField name{*this, "name"};
  };
  const std::string userFolder = "Library/Application Support/Wordhaven/UserDic/";
  const std::string memoryFolder = "Library/Application Support/Wordhaven/UserTMA/";
  Log log;
  FakePanels panels{log};
  FieldOutlets outlets;
  NewDictionaryRequest request;
  DictionaryNameChecks checks;
};

constexpr std::optional<DictionaryKind> unknown;

struct Refused {
  std::optional<DictionaryKind> kind;
  Direction direction;
  std::string name;
  Log log;
};

class RefusedName : public testing::TestWithParam<Refused> {};

TEST_P(RefusedName, isToldInTheWayOfItsKind) {
  const Refused& example = GetParam();
  Checks world;
  world.setText("EJCommonUD", "Common");
  world.setText("EJCommonUTMA", "Mem");
  EXPECT_FALSE(world.passes(example.kind, example.direction, example.name));
  EXPECT_EQ(world.log, example.log);
  for (const Alert& alert : world.panels.alerts) EXPECT_EQ(alert.buttons, std::vector<std::string>{"«AlertClose»"});
}

const Log noName{"alert «NoUDNameHeader» / «NoUDNameMessage»"};
const Log noMemoryName{"beep", "alert «NoUTMNameHeader» / «NoUDNameMessage»"};
const Log invalid{"beep", "alert «invalidNameHeader» / «invalidNameUDMessage»"};
const Log invalidMemory{"beep", "alert «invalidNameHeader» / «invalidNameUTMAMessage»"};
const Log reserved{"alert «invalidNameHeader2» / «invalidNameUDMessage2»"};
const Log tooLong{"beep", "alert «tooLongNameHeader» / «tooLongNameUDMessage»"};
const Log tooLongMemory{"beep", "alert «tooLongNameHeader» / «tooLongNameUTMAMessage»"};

INSTANTIATE_TEST_SUITE_P(
    ByCheck, RefusedName,
    testing::Values(
        Refused{user, EJ, "", noName}, Refused{user, EJ, "  \t\n", noName}, Refused{user, JE, "　\u00a0", noName},
        Refused{memory, EJ, "", noMemoryName}, Refused{technical, EJ, "", {}}, Refused{unknown, JE, " ", {}},
        Refused{user, EJ, "Release 1.0", invalid}, Refused{user, EJ, "A:B", invalid}, Refused{user, EJ, "A/B", invalid},
        Refused{user, EJ, ".x", invalid}, Refused{user, EJ, "x.", invalid}, Refused{user, EJ, "A\\B", invalid},
        Refused{memory, JE, "A.B", invalidMemory}, Refused{unknown, EJ, "A.B", {}},
        Refused{user, EJ, "COMMON", reserved}, Refused{memory, EJ, "mem", reserved},
        Refused{user, EJ, std::string(31, 'a'), tooLong}, Refused{memory, EJ, std::string(31, 'a'), tooLongMemory},
        Refused{unknown, EJ, std::string(31, 'a'), {"beep", "alert «tooLongNameHeader» / "}},
        Refused{user, EJ, std::string(40, 'a') + "/", invalid}));

TEST(DictionaryNameChecks, theReservedNameIsTestedBeforeTheLength) {
  Checks world;
  const std::string name = std::string(40, 'c');
  world.setText("EJCommonUD", name);
  EXPECT_FALSE(world.passes(user, EJ, name));
  EXPECT_EQ(world.log, reserved);
}

TEST(DictionaryNameChecks, onlyTheReservedNameOfTheKindAndDirectionIsRefused) {
  for (const char* other : {"JECommonUD", "EJCommonUTMA", "JECommonUTMA"}) {
    Checks world;
    world.setText(other, "Common");
    EXPECT_TRUE(world.passes(user, EJ, "Common")) << other;
  }
  Checks world;
  world.setText("EJCommonUD", "Common");
  world.request.kind = unknown;
  world.outlets.name.setStringValue("Common");
  EXPECT_TRUE(world.checks.checkIsCommonDicName());
}

TEST(DictionaryNameChecks, lettersThatLookLikeForbiddenOnesAreAllowed) {
  for (const char* name : {"A．B", "A：B", "A／B", "A＼B", "A¥B", "a b"}) {
    Checks world;
    EXPECT_TRUE(world.passes(user, EJ, name)) << name;
  }
}

TEST(DictionaryNameChecks, thePickerAllowsABackslashAndKeepsSilentAboutLongNamesOfOddKinds) {
  Checks world(pickerRules);
  EXPECT_TRUE(world.passes(user, EJ, "A\\B"));
  EXPECT_FALSE(world.passes(user, EJ, "A.B"));
  EXPECT_FALSE(world.passes(unknown, EJ, std::string(31, 'a')));
  EXPECT_EQ(world.log, Log{});
}

TEST(DictionaryNameChecks, theAlertNamesTheCharactersThatItsOwnerForbids) {
  for (const auto& [rules, characters] :
       {std::pair{paneRules, std::string(". : / \\")}, std::pair{pickerRules, std::string(". : /")}}) {
    Checks world(rules);
    world.setText("invalidNameUDMessage", "none of %@");
    EXPECT_FALSE(world.passes(user, EJ, "A.B"));
    EXPECT_EQ(world.log, (Log{"beep", "alert «invalidNameHeader» / none of " + characters}));
  }
}

TEST(DictionaryNameChecks, oddKindsAreRefusedInSilenceBySheetsOfBothOwners) {
  for (const DictionaryNameChecks::Rules& rules : {paneRules, pickerRules}) {
    Checks world(rules);
    for (const std::optional<DictionaryKind> kind : {unknown, std::optional(technical)}) {
      for (const char* name : {"", " \u3000\n", "A.B", "A/B"}) {
        EXPECT_FALSE(world.passes(kind, EJ, name)) << name;
        EXPECT_EQ(world.log, Log{});
      }
    }
    world.passes(unknown, EJ, "  A.B ");
    EXPECT_EQ(world.outlets.name.stringValue(), "A.B");
  }
}

struct Length {
  std::string name;
  bool passes;
};

class NameLength : public testing::TestWithParam<Length> {};

TEST_P(NameLength, isCountedInBytesOfShiftJis) {
  Checks world;
  world.outlets.name.setStringValue(GetParam().name);
  EXPECT_EQ(world.checks.checkIsOverCountName(), GetParam().passes) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    AroundThirty, NameLength,
    testing::Values(Length{std::string(30, 'a'), true}, Length{std::string(31, 'a'), false},
                    Length{times(15, "あ"), true}, Length{times(16, "あ"), false}, Length{times(14, "あ") + "ab", true},
                    Length{times(14, "あ") + "abc", false}, Length{times(30, "ｱ"), true},
                    Length{times(31, "ｱ"), false},  // half width: one byte each
                    Length{times(28, "a") + "〜", true}, Length{times(29, "a") + "〜", false},  // U+301C: two
                    Length{times(28, "a") + "～", true}, Length{times(29, "a") + "～", false},  // U+FF5E: two
                    Length{times(30, "😀"), true}, Length{times(31, "😀"), false},              // no such letter: one
                    Length{times(30, "\u00a5"), true}, Length{times(31, "\u203e"), false},
                    Length{times(15, "か\u3099"), false},  // the mark counts by itself
                    Length{times(30, "é"), true}, Length{times(31, "é"), false}));

TEST(DictionaryNameChecks, theFieldKeepsTheTrimmedNameWhetherOrNotItPasses) {
  Checks world;
  EXPECT_TRUE(world.passes(user, EJ, " My Dict\n"));
  EXPECT_EQ(world.outlets.name.stringValue(), "My Dict");
  EXPECT_EQ(world.request.fDictName, "My Dict.eud2");
  EXPECT_FALSE(world.passes(user, EJ, "  A/B  "));
  EXPECT_EQ(world.outlets.name.stringValue(), "A/B");
  EXPECT_EQ(world.request.fDictName, "My Dict.eud2") << "only the last check touches the file name";
}

TEST(DictionaryNameChecks, kindAndDirectionGiveTheExtension) {
  Checks world;
  EXPECT_TRUE(world.passes(user, EJ, "~x"));
  EXPECT_EQ(world.request.fDictName, "~x.eud2");
  EXPECT_TRUE(world.passes(user, JE, "N"));
  EXPECT_EQ(world.request.fDictName, "N.jud");
  EXPECT_TRUE(world.passes(memory, EJ, "N"));
  EXPECT_EQ(world.request.fDictName, "N.etm");
  EXPECT_TRUE(world.passes(memory, JE, "a b"));
  EXPECT_EQ(world.request.fDictName, "a b.jtm");
  EXPECT_TRUE(world.passes(unknown, EJ, "N"));
  EXPECT_EQ(world.request.fDictName, "");
  EXPECT_EQ(world.log, Log{});
}

TEST(DictionaryNameChecks, aNameWhoseFileIsThereIsRefusedAndTold) {
  Checks world;
  world.folder.write(world.memoryFolder + "Terms.jtm", "");
  EXPECT_FALSE(world.passes(memory, JE, "Terms"));
  EXPECT_EQ(world.log, (Log{"beep", "alert \"Terms.jtm\"«existsDicHeader» / «existsUTMAMessage»"}));
  EXPECT_EQ(world.request.fDictName, "Terms.jtm");
  EXPECT_TRUE(world.passes(memory, EJ, "Terms")) << "the other direction has another file name";
  EXPECT_FALSE(world.passes(memory, JE, "TERMS")) << "names are equal whatever their letter case";

  world.folder.write(world.userFolder + "Terms.eud2", "");
  world.folder.makeFolder(world.userFolder + "Dir.eud2");
  EXPECT_FALSE(world.passes(user, EJ, "Terms"));
  EXPECT_EQ(world.log, (Log{"beep", "alert \"Terms.eud2\"«existsDicHeader» / «existsUDMessage»"}));
  EXPECT_FALSE(world.passes(user, EJ, "Dir")) << "a folder is in the way too";
}

TEST(DictionaryNameChecks, aKeyWithoutATextShowsAsNothing) {
  Checks world;
  world.texts.clear();
  EXPECT_FALSE(world.passes(user, EJ, "A.B"));
  EXPECT_EQ(world.log, (Log{"beep", "alert  / "}));
  EXPECT_EQ(world.panels.alerts.back().buttons, std::vector<std::string>{""});
  EXPECT_TRUE(world.passes(user, EJ, "EJCommonUD")) << "a key is no reserved name";
}

TEST(DictionaryNameChecks, oneForbiddenTextIsLookedForExactly) {
  Checks world;
  world.outlets.name.setStringValue("a.b");
  EXPECT_FALSE(world.checks.compareInvalidName("."));
  EXPECT_FALSE(world.checks.compareInvalidName("a"));
  EXPECT_TRUE(world.checks.compareInvalidName("A"));
  EXPECT_TRUE(world.checks.compareInvalidName("x"));
  EXPECT_TRUE(world.checks.compareInvalidName("")) << "nothing was asked for";
}

TEST(DictionaryNameChecks, nothingIsWrittenToTheDisk) {
  Checks world;
  const std::vector<std::string> before = world.folder.names();
  for (const char* name : {"Good", "A/B", ""}) world.passes(user, EJ, name);
  EXPECT_EQ(world.folder.names(), before);
}

}  // namespace
}  // namespace tarvo::test
