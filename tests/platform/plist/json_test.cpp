// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/json.h"

#include <gtest/gtest.h>

namespace tarvo::test {
namespace {

std::string rewritten(std::string_view text) {
  const std::optional<Json> value = readJson(text);
  return value ? writeJson(*value) : "no JSON";
}

TEST(Json, writesWhatItReadsInItsOneForm) {
  const std::pair<const char*, const char*> cases[] = {
      {"null", "null"},
      {" [ 1 , true , false ] ", "[1,true,false]"},
      {R"({"b":1,"a":{}})", R"({"a":{},"b":1})"},
      {"-0", "0"},
      {"-9223372036854775808", "-9223372036854775808"},
      {"18446744073709551615", "18446744073709551615"},
      {"1.50", "1.5"},
      {"1e2", "100.0"},
      {"-0.0", "-0.0"},
      {"1e300", "1e+300"},
      {R"("\u3042\ud83d\ude00\/\b")", "\"あ😀/\\u0008\""},
      {"\"tab\\tline\\nquote\\\"\"", "\"tab\\tline\\nquote\\\"\""},
      {"-18446744073709551615", "-18446744073709551615"},
      {"1e-400", "0.0"},
      {R"({"a":1,"b":2,"a":3})", R"({"a":3,"b":2})"},
  };
  for (const auto& [text, written] : cases) EXPECT_EQ(rewritten(text), written) << text;
}

TEST(Json, refusesWhatIsNone) {
  for (const char* text :
       {"",      "nul",    "01",       "1.",      ".5",          "+1",   "1e",  "[1,]", "[1 2]", "{\"a\"}",
        "{a:1}", "\"open", "\"a\nb\"", R"("\x")", R"("\u12g4")", "[1]2", "nan", "inf",  "-",     "{\"a\":1,}"}) {
    EXPECT_EQ(rewritten(text), "no JSON") << text;
  }
}

TEST(Json, refusesWhatItCouldNotHold) {
  for (const char* text : {"18446744073709551616", "1e400", "-1e400", R"("\ud83d")", R"("\ud83d\u0041")", R"("\ude00")",
                           "\"a\xFF\"", "\"\xE3\x81\""}) {
    EXPECT_EQ(rewritten(text), "no JSON") << text;
  }
}

TEST(Json, endsInsteadOfOverflowingOnDeepNesting) {
  EXPECT_NE(rewritten(std::string(512, '[') + std::string(512, ']')), "no JSON");
  EXPECT_EQ(rewritten(std::string(513, '[') + std::string(513, ']')), "no JSON");
  EXPECT_EQ(rewritten(std::string(100000, '[')), "no JSON");
}

TEST(Json, tellsIntegersRealsAndBooleansApart) {
  const auto equal = [](const char* a, const char* b) { return matches(*readJson(a), *readJson(b)); };
  EXPECT_TRUE(equal("1", "1"));
  EXPECT_FALSE(equal("1", "1.0"));
  EXPECT_FALSE(equal("1", "true"));
  EXPECT_FALSE(equal("0", "false"));
  EXPECT_FALSE(equal("\"1\"", "1"));
  EXPECT_TRUE(equal("1.0", "1.00"));
  EXPECT_FALSE(equal("0.0", "-0.0"));
}

TEST(Json, comparesWithoutRegardToTheOrderOfKeysAndWithWildcards) {
  const auto equal = [](const char* expected, const char* value) {
    return matches(*readJson(expected), *readJson(value));
  };
  EXPECT_TRUE(equal(R"({"a":1,"b":[2,{"c":"*"}]})", R"({"b":[2,{"c":{"d":null}}],"a":1})"));
  EXPECT_FALSE(equal(R"({"a":"*"})", R"({"a":1,"b":2})"));
  EXPECT_FALSE(equal(R"({"a":"*","b":"*"})", R"({"a":1})"));
  EXPECT_FALSE(equal(R"(["*"])", "[]"));
  EXPECT_FALSE(equal("1", R"("*")"));
  EXPECT_TRUE(equal(R"("*")", "null"));
}

TEST(Json, holdsPropertyListsOfEveryKind) {
  const char* text =
      R"({"array":[1,-2],"boolean":true,"data":{"$data":"AAH/"},"date":{"$date":"2009-01-31T12:00:00Z"},)"
      R"("real":2.5,"text":"あ"})";
  const std::optional<PropertyList> list = propertyListFromJson(*readJson(text));
  ASSERT_TRUE(list);
  const Dictionary& root = *list->dictionary();
  EXPECT_EQ(*root.find("data"), PropertyList(Data{std::byte{0}, std::byte{1}, std::byte{0xFF}}));
  EXPECT_EQ(*root.find("date"), PropertyList(Date{"2009-01-31T12:00:00Z"}));
  EXPECT_EQ(writeJson(jsonFromPropertyList(*list)), text);
}

TEST(Json, padsDataOfEveryLength) {
  for (const char* text : {R"({"$data":""})", R"({"$data":"AA=="})", R"({"$data":"AAA="})", R"({"$data":"AAAA"})"}) {
    const std::optional<PropertyList> list = propertyListFromJson(*readJson(text));
    ASSERT_TRUE(list) << text;
    EXPECT_EQ(writeJson(jsonFromPropertyList(*list)), text);
  }
  EXPECT_FALSE(propertyListFromJson(*readJson(R"({"$data":"A"})")));
  EXPECT_FALSE(propertyListFromJson(*readJson(R"({"$data":"A*A="})")));
  EXPECT_FALSE(propertyListFromJson(*readJson(R"({"$data":"AB=="})")));  // bits left over
}

TEST(Json, hasNoPropertyListForNull) { EXPECT_FALSE(propertyListFromJson(*readJson("[1,null]"))); }

TEST(Json, writesRealsOfPropertyListsAsNumbers) {
  EXPECT_EQ(writeJson(Real{"1"}), "1.0");
  EXPECT_EQ(writeJson(Real{"+2.50"}), "2.5");
  EXPECT_EQ(writeJson(Real{".5"}), "0.5");
  EXPECT_EQ(writeJson(Real{"nan"}), R"({"$real":"nan"})");
  EXPECT_EQ(writeJson(Real{"1e400"}), R"({"$real":"+infinity"})");
  EXPECT_EQ(writeJson(Real{"-inf"}), R"({"$real":"-infinity"})");
}

TEST(Json, writesFramesWithoutNeedlessDecimals) {
  EXPECT_EQ(writeJson(jsonNumber(698)), "698");
  EXPECT_EQ(writeJson(jsonNumber(-0.5F)), "-0.5");
  EXPECT_EQ(writeJson(jsonNumber(0.1F)), "0.1");
}

TEST(Json, replacesBytesThatAreNoText) { EXPECT_EQ(writeJson("a\xFF"), "\"a\xEF\xBF\xBD\""); }

}  // namespace
}  // namespace tarvo::test
