// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/script_reader.h"

#include <gtest/gtest.h>

#include "console/script/script_error.h"

namespace tarvo::test {
namespace {

using Words = std::vector<std::string>;

TEST(ScriptLine, separatesWordsByBlanks) {
  EXPECT_EQ(ScriptLine("  choose\tstylePopup  1 \r").words(), (Words{"choose", "stylePopup", "1"}));
  EXPECT_EQ(ScriptLine("").words(), Words{});
  EXPECT_EQ(ScriptLine("file home:/用語 b").words(), (Words{"file", "home:/用語", "b"}));
}

TEST(ScriptLine, readsQuotedWords) {
  EXPECT_EQ(ScriptLine(R"(type field "a b")").words(), (Words{"type", "field", "a b"}));
  EXPECT_EQ(ScriptLine(R"(a "" b)").words(), (Words{"a", "", "b"}));
  EXPECT_EQ(ScriptLine(R"(home:/"My Folder"/x)").words(), (Words{"home:/My Folder/x"}));
  EXPECT_EQ(ScriptLine(R"("\"\\\n\t\u3042\ud83d\ude00")").words(), (Words{"\"\\\n\tあ😀"}));
}

TEST(ScriptLine, endsAtAComment) {
  EXPECT_EQ(ScriptLine("start # now").words(), Words{"start"});
  EXPECT_EQ(ScriptLine("# nothing").words(), Words{});
  EXPECT_EQ(ScriptLine(R"(type field a#b "# c")").words(), (Words{"type", "field", "a#b", "# c"}));
}

TEST(ScriptLine, leavesTheRestAsItStands) {
  ScriptLine line(R"(expect any  {"a":"# \r"} # b  )");
  EXPECT_EQ(line.word(), "expect");
  EXPECT_EQ(line.word(), "any");
  EXPECT_EQ(line.rest(), R"({"a":"# \r"} # b)");
  EXPECT_TRUE(line.atEnd());
}

TEST(ScriptLine, refusesBrokenQuotations) {
  for (const char* text : {R"("open)", R"("\x")", R"("\u12")", R"("\u12g4")", R"("\ud83d")", R"("end\)"}) {
    EXPECT_THROW(ScriptLine(text).words(), ScriptError) << text;
  }
}

}  // namespace
}  // namespace tarvo::test
