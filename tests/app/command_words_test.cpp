// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/command_line/command_words.h"

#include <gtest/gtest.h>

#include "platform/services/texts.h"

namespace tarvo::test {
namespace {

using Words = std::vector<std::string>;
using Kind = UsageError::Kind;

// A program with two verbs, one of them in a group.
class CommandWords : public testing::Test {
 protected:
  std::optional<UsageError> read(const Words& words) { return readWords(table_, words).error; }
  // What is told, by the keys of the texts.
  std::string line(const Words& words) {
    const auto error = read(words);
    return error ? told(*error, "tool", Texts()) : "";
  }

  bool loud_ = false, help_ = false;
  int number_ = 0;
  std::string name_;
  std::optional<std::string> root_;
  Words files_, all_;
  const CommandTable table_{"tool",
                            "About",
                            {{"--root", "DIR", "Root", "$ROOT", &root_},
                             {"--file", "FILE", "File", "", &files_},
                             {"--loud", "", "Loud", "", &loud_},
                             {"-h,--help", "", "Help", "", &help_, {}, true}},
                            {{"N", &number_, wholeNumber()}, {"NAME", &name_, {{"one", "two"}}}, {"WORDS", &all_}},
                            {{"list", "List", "[NAME]"}, {"style", "Style"}, {"style set", "Set", "N WORDS..."}}};
};

TEST_F(CommandWords, valuesStandBehindAnEqualsSignOrAsTheNextWord) {
  EXPECT_FALSE(read({"--root=/a b", "list", "--file", "日本", "--file=", "--loud"}));
  EXPECT_EQ(root_, "/a b");
  EXPECT_EQ(files_, (Words{"日本", ""}));
  EXPECT_TRUE(loud_);
}

TEST_F(CommandWords, anEmptyValueTakesNoWordOfTheVerb) {
  EXPECT_FALSE(read({"--root=", "style", "set", "7", "x"}));
  EXPECT_EQ(root_, "");
  EXPECT_EQ(number_, 7);
}

TEST_F(CommandWords, theLastValueCountsAndMayLookLikeAnOption) {
  EXPECT_FALSE(read({"list", "--root", "a", "--root", "--loud"}));
  EXPECT_EQ(root_, "--loud");
  EXPECT_FALSE(loud_);
}

TEST_F(CommandWords, wordsOfAListAreTakenAsTheyAre) {
  EXPECT_FALSE(read({"style", "set", "-3", "[a,b]", "k=--root=x", "list", "-", ""}));
  EXPECT_EQ(number_, -3);
  EXPECT_EQ(all_, (Words{"[a,b]", "k=--root=x", "list", "-", ""}));
  EXPECT_FALSE(read({"style", "set", "0", "--", "--root=x", "-x"}));
  EXPECT_EQ(all_, (Words{"--root=x", "-x"}));
  EXPECT_FALSE(root_);
}

TEST_F(CommandWords, theVerbIsToldAsFarAsItWasNamed) {
  EXPECT_EQ(readWords(table_, {"style", "set"}).verb, "style set");
  EXPECT_EQ(readWords(table_, {"--help", "style"}).verb, "style");
  EXPECT_EQ(readWords(table_, {}).verb, "");
}

TEST_F(CommandWords, helpSufficesWhateverElseIsThere) {
  EXPECT_FALSE(read({"style", "--wrong", "-h"}));
  EXPECT_TRUE(help_);
}

TEST_F(CommandWords, whatIsWrongIsToldWithWhatIsAllowedAndTheNearest) {
  const std::pair<Words, const char*> cases[] = {
      {{}, "tool: COMMAND: Usage.Missing; Usage.Allowed: list, style"},
      {{"lits"}, "tool: lits: Usage.UnknownVerb; Usage.Allowed: list, style; Usage.Nearest: list"},
      {{"style"}, "tool: style COMMAND: Usage.Missing; Usage.Allowed: set"},
      {{"style", "st"}, "tool: st: Usage.UnknownVerb; Usage.Allowed: set; Usage.Nearest: set"},
      {{"list", "xyz"}, "tool: NAME xyz: Usage.WrongValue; Usage.Allowed: one, two"},
      {{"list", "tow"}, "tool: NAME tow: Usage.WrongValue; Usage.Allowed: one, two; Usage.Nearest: two"},
      {{"list", "one", "x"}, "tool: x: Usage.Unexpected; Usage.Allowed: tool list [NAME]"},
      {{"style", "set"}, "tool: N: Usage.Missing; Usage.Allowed: tool style set N WORDS..."},
      {{"style", "set", "1"}, "tool: WORDS: Usage.Missing; Usage.Allowed: tool style set N WORDS..."},
      {{"list", "--rot", "x"},
       "tool: --rot: Usage.UnknownOption; Usage.Allowed: --root, --file, --loud, --help; Usage.Nearest: --root"},
      {{"list", "--loud=no"},
       "tool: --loud=no: Usage.UnknownOption; Usage.Allowed: --root, --file, --loud, --help; Usage.Nearest: --loud"},
      {{"list", "--root"}, "tool: --root: Usage.MissingValue"},
  };
  for (const auto& [words, expected] : cases) EXPECT_EQ(line(words), expected) << testing::PrintToString(words);
}

TEST_F(CommandWords, aNumberIsWholeOrNone) {
  for (const char* word : {"", "+1", "0x1", " 1", "1 ", "1.0", "one", "99999999999", "--1", "-"}) {
    EXPECT_EQ(line({"style", "set", "--", word, "x"}),
              std::string("tool: N ") + word + ": Usage.WrongValue; Usage.Allowed: Usage.Number");
  }
}

TEST_F(CommandWords, helpShowsTheTable) {
  Texts texts;
  Dictionary table;
  table.set("Usage.Options", "Optionen");
  table.set("Set", "sets");
  texts.overlay(table);
  const std::string whole = helpText(table_, "", texts), set = helpText(table_, "style set", texts);
  EXPECT_NE(whole.find("Optionen:\n  --root DIR=$ROOT"), std::string::npos) << whole;
  EXPECT_TRUE(set.starts_with("sets\nUsage.Usage: tool style set N WORDS...\n")) << set;
}

TEST(NearestWord, isTheOneThatTheFewestChangesMake) {
  const Words words{"styles", "style", "engine", "run"};
  const std::pair<const char*, const char*> cases[] = {
      {"stlyes", "styles"}, {"sty", "styles"}, {"engin", "engine"}, {"nun", "run"},
      {"xq", ""},           {"", ""},          {"runs", "run"},     {"Style", "style"},
  };
  for (const auto& [word, nearest] : cases) EXPECT_EQ(nearestWord(word, words), nearest) << word;
  EXPECT_EQ(nearestWord("x", {}), "");
}

}  // namespace
}  // namespace tarvo::test
