// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/text_rules.h"

#include <gtest/gtest.h>

#include <limits>

namespace tarvo {
namespace {

TEST(TextRules, textsAreComparedBySimpleCaseFoldingAlone) {
  const struct {
    const char *a, *b;
    bool equal;
  } rows[] = {
      {"", "", true},
      {"a", "", false},
      {"Standard", "sTANDARD", true},
      {"Standard", "Standard ", false},
      {"Ａ", "ａ", true},  // full width has letter case too
      {"Ａ", "A", false},  // but is no half width
      {"ß", "ss", false},  // one code point never equals two
      {"ß", "ẞ", true},
      {"É", "é", true},
      {"\u00E9", "e\u0301", false},  // no normalisation
      {"Σ", "ς", true},
      {"σ", "ς", true},
      {"\u212A", "k", true},   // KELVIN SIGN
      {"\u0130", "i", false},  // dotted capital I folds only in some languages
      {"I", "\u0131", false},
      {"ﬀ", "ff", false},
      {"ガ", "カ\u3099", false},
      {"ｶﾞ", "ガ", false},
      {"あ", "ア", false},
      {"𐐀", "𐐨", true},  // beyond the basic plane
      {"a\xFF", "A\xFF", true},
      {"a\xFE", "a\xFF", false},
      {"\xC3", "\xE3", false},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(equalIgnoringCase(row.a, row.b), row.equal) << row.a << " | " << row.b;
    EXPECT_EQ(equalIgnoringCase(row.b, row.a), row.equal) << row.b << " | " << row.a;
  }
}

TEST(TextRules, aWordIsFoundIgnoringCaseButAnEmptyOneNever) {
  EXPECT_TRUE(containsIgnoringCase("Corwell Medical 6", "MEDICAL"));
  EXPECT_TRUE(containsIgnoringCase("医学ＡＢＣ", "ａｂ"));
  EXPECT_FALSE(containsIgnoringCase("Medical", "Medicals"));
  EXPECT_FALSE(containsIgnoringCase("Medical", ""));
  EXPECT_FALSE(containsIgnoringCase("", ""));
  EXPECT_FALSE(containsIgnoringCase("\u3042", "\x81"));  // never inside a character
}

TEST(TextRules, whiteSpaceAndLineBreaksAreTrimmedAtBothEnds) {
  for (const char* space : {"\t", "\n", "\v", "\f", "\r", " ", "\u0085", "\u00A0", "\u1680", "\u2000", "\u200A",
                            "\u2028", "\u2029", "\u202F", "\u205F", "\u3000"}) {
    EXPECT_EQ(trimmed(std::string(space) + "a" + space + "b" + space + space), std::string("a") + space + "b");
    EXPECT_EQ(trimmed(std::string(space) + space), "");
  }
  for (const char* other : {"\u200B", "\uFEFF", "\u180E", "\u2060", "\x80", "\xE3\x80"}) {
    EXPECT_EQ(trimmed(other), other);
  }
  EXPECT_EQ(trimmed(""), "");
}

TEST(TextRules, theLeadingNumberIsReadWithoutALocale) {
  const struct {
    const char* text;
    double number;
  } rows[] = {
      {"10.6.8", 10.6}, {"10,6", 10},     {" \u300011.2x", 11.2},
      {"-3.5", -3.5},   {"+4", 4},        {"+-4", 0},
      {"--4", 0},       {".5", 0.5},      {"5.", 5},
      {".", 0},         {"", 0},          {"x", 0},
      {"inf", 0},       {"nan", 0},       {"1e3", 1000},
      {"1e", 1},        {"0x1F", 0},      {"1e-999", 0},
      {"-0", 0},        {"0.00e-999", 0},
  };
  for (const auto& row : rows) EXPECT_EQ(leadingNumber(row.text), row.number) << row.text;
  EXPECT_EQ(leadingNumber("1e999"), std::numeric_limits<double>::max());
  EXPECT_EQ(leadingNumber("-1e999"), -std::numeric_limits<double>::max());
  EXPECT_EQ(leadingNumber(std::string(400, '9')), std::numeric_limits<double>::max());
}

TEST(TextRules, theLeadingIntegerSaturates) {
  const struct {
    const char* text;
    int number;
  } rows[] = {
      {"0", 0},
      {"42", 42},
      {" \t-7z", -7},
      {"+7", 7},
      {"- 7", 0},
      {"+-7", 0},
      {"", 0},
      {"-", 0},
      {"3.9", 3},
      {"４", 0},
      {"0012", 12},
      {"2147483647", 2147483647},
      {"2147483648", 2147483647},
      {"-2147483648", -2147483647 - 1},
      {"-2147483649", -2147483647 - 1},
      {"99999999999999999999999", 2147483647},
  };
  for (const auto& row : rows) EXPECT_EQ(leadingInteger(row.text), row.number) << row.text;
}

TEST(TextRules, pathsAreTakenApart) {
  const struct {
    const char *path, *last, *above, *extension, *stem;
  } rows[] = {
      {"/a/b.c", "b.c", "/a", "c", "/a/b"},
      {"/a/b/", "b", "/a", "", "/a/b"},
      {"/a", "a", "/", "", "/a"},
      {"//a//", "a", "/", "", "//a"},
      {"/", "/", "/", "", "/"},
      {"", "", "", "", ""},
      {"a", "a", "", "", "a"},
      {"a.b.TRet", "a.b.TRet", "", "TRet", "a.b"},
      {".TRet", ".TRet", "", "", ".TRet"},
      {"/x/.TRet", ".TRet", "/x", "", "/x/.TRet"},
      {"a.", "a.", "", "", "a."},
      {"/x.y/a", "a", "/x.y", "", "/x.y/a"},
      {"/辞書/医学.TRet", "医学.TRet", "/辞書", "TRet", "/辞書/医学"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(lastPathComponent(row.path), row.last) << row.path;
    EXPECT_EQ(deletingLastPathComponent(row.path), row.above) << row.path;
    EXPECT_EQ(pathExtension(row.path), row.extension) << row.path;
    EXPECT_EQ(deletingPathExtension(row.path), row.stem) << row.path;
  }
}

TEST(TextRules, pathsAreJoinedByOneSlash) {
  const struct {
    const char *base, *rest, *joined;
  } rows[] = {
      {"/a", "b", "/a/b"}, {"/a/", "/b", "/a/b"}, {"/a//", "//b/c", "/a/b/c"},
      {"/", "b", "/b"},    {"/a", "", "/a"},      {"/a/", "/", "/a/"},
      {"", "b", "b"},      {"", "", ""},
  };
  for (const auto& row : rows) EXPECT_EQ(joinPath(row.base, row.rest), row.joined) << row.base << " + " << row.rest;
}

TEST(TextRules, aPathIsBelowAFolderOnlyAtAWholeComponent) {
  EXPECT_TRUE(isBelow("/a/b", "/a"));
  EXPECT_TRUE(isBelow("/a", "/a"));
  EXPECT_TRUE(isBelow("/a/", "/a/"));
  EXPECT_TRUE(isBelow("/a", "/"));
  EXPECT_FALSE(isBelow("/ab", "/a"));
  EXPECT_FALSE(isBelow("/", "/a"));
  EXPECT_FALSE(isBelow("a", "/"));
  EXPECT_FALSE(isBelow("", "/"));
}

TEST(TextRules, anExtensionIsAddedWhereItLacks) {
  EXPECT_EQ(withPathExtension("/a.b/Beta", "whstyle"), "/a.b/Beta.whstyle");
  EXPECT_EQ(withPathExtension("v1.2", "whstyle"), "v1.2.whstyle");
  EXPECT_EQ(withPathExtension("a.WHSTYLE", "whstyle"), "a.WHSTYLE");
  EXPECT_EQ(withPathExtension("a", ""), "a");
}

}  // namespace
}  // namespace tarvo
