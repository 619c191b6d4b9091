// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/architecture/layering.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tarvo {
namespace {

using Rule = std::vector<std::string> (*)(const SourceTree&);

// What a rule says of a tree of the given files.
std::vector<std::string> faults(Rule rule, const std::map<std::string, std::string>& files) {
  SourceTree tree;
  for (const auto& [path, text] : files) tree[path] = includesOf(text);
  return rule(tree);
}

std::string joined(const std::vector<std::string>& lines) {
  std::string all;
  for (const auto& line : lines) all += line + "\n";
  return all;
}

const SourceTree& project() {
  static const SourceTree tree = readSourceTree(TARVO_SOURCE_DIR);
  return tree;
}

TEST(Layering, theProjectIsRead) {
  EXPECT_GT(project().size(), 50U);
  ASSERT_TRUE(project().contains("platform/controls/controls.h"));
  EXPECT_FALSE(project().at("platform/controls/controls.h").empty());
}

TEST(Layering, noArrowRunsUpOrSideways) { EXPECT_EQ(joined(faultyArrows(project())), ""); }
TEST(Layering, noTwoFilesIncludeEachOther) { EXPECT_EQ(joined(includeLoops(project())), ""); }
TEST(Layering, headersOfTheCoreNameNoLibraryAndNoSystem) { EXPECT_EQ(joined(foreignHeaders(project())), ""); }
TEST(Layering, onlyOneFolderAsksTheSystem) { EXPECT_EQ(joined(spreadSystem(project())), ""); }
TEST(Layering, onlyOneFolderReadsWhatTheSystemTellsInFiles) {
  EXPECT_EQ(joined(filesThatName(TARVO_SOURCE_DIR, "\"/proc")), "");
}
TEST(Layering, eachLibraryHasOneFile) { EXPECT_EQ(joined(spreadLibraries(project())), ""); }

struct Arrow {
  const char* from;
  const char* to;
  bool allowed;
};

void PrintTo(const Arrow& arrow, std::ostream* out) { *out << arrow.from << " -> " << arrow.to; }

class Arrows : public testing::TestWithParam<Arrow> {};

TEST_P(Arrows, isJudged) {
  const auto& [from, to, allowed] = GetParam();
  const auto found = faults(faultyArrows, {{from, "\n#include \"" + std::string(to) + "\"\n"}, {to, ""}});
  ASSERT_EQ(found.size(), allowed ? 0U : 1U) << joined(found);
  if (!allowed) {
    EXPECT_TRUE(found[0].starts_with(std::string(from) + ":2: ")) << found[0];
  }
}

INSTANTIATE_TEST_SUITE_P(
    Down, Arrows,
    testing::Values(
        Arrow{"style/a.cpp", "platform/services/b.h", true}, Arrow{"dict/a.cpp", "style/b.h", true},
        Arrow{"install/a.cpp", "platform/services/b.h", true}, Arrow{"app/a.cpp", "install/b.h", true},
        Arrow{"console/verbs/a.cpp", "app/b.h", true}, Arrow{"console/verbs/a.cpp", "console/script/b.h", true},
        Arrow{"platform/controls/a.cpp", "platform/plist/b.h", true}, Arrow{"qt/panes/a.cpp", "qt/bind/b.h", true},
        Arrow{"qt/bind/a.cpp", "qt/look/b.h", true}, Arrow{"qt/shell.cpp", "qt/window/b.h", true},
        Arrow{"platform/posix/a.cpp", "platform/services/b.h", true},
        Arrow{"app/product.cpp", "platform/posix/b.h", true}, Arrow{"qt/main.cpp", "platform/engine/b.h", true},
        Arrow{"tests/style/a_test.cpp", "qt/panes/b.h", true}));

INSTANTIATE_TEST_SUITE_P(
    Up, Arrows,
    testing::Values(Arrow{"platform/text/a.h", "style/b.h", false}, Arrow{"style/a.cpp", "dict/b.h", false},
                    Arrow{"dict/a.cpp", "app/b.h", false}, Arrow{"platform/text/a.cpp", "platform/plist/b.h", false},
                    Arrow{"platform/services/a.h", "platform/controls/b.h", false},
                    Arrow{"console/script/a.cpp", "console/verbs/b.h", false}, Arrow{"install/a.cpp", "app/b.h", false},
                    Arrow{"app/a.cpp", "qt/window/b.h", false}, Arrow{"app/a.cpp", "console/b.h", false},
                    Arrow{"qt/look/a.cpp", "qt/bind/b.h", false}, Arrow{"qt/bind/a.cpp", "qt/panes/b.h", false},
                    Arrow{"qt/window/a.cpp", "qt/shell.h", false}, Arrow{"qt/shell.cpp", "tests/support/b.h", false}));

INSTANTIATE_TEST_SUITE_P(Sideways, Arrows,
                         testing::Values(Arrow{"style/a.cpp", "install/b.h", false},
                                         Arrow{"install/a.cpp", "dict/b.h", false},
                                         Arrow{"qt/a.cpp", "console/b.h", false},
                                         Arrow{"console/a.cpp", "qt/b.h", false},
                                         Arrow{"qt/panes/a.cpp", "qt/sheets/b.h", false},
                                         Arrow{"platform/posix/a.cpp", "platform/engine/b.h", false},
                                         Arrow{"platform/services/a.cpp", "platform/posix/b.h", false},
                                         Arrow{"app/program.cpp", "platform/posix/b.h", false},
                                         Arrow{"style/a.cpp", "platform/engine/b.h", false}));

TEST(Layering, aNameThatIsNoPathFromTheTopIsAFault) {
  EXPECT_EQ(faults(faultyArrows, {{"style/a.cpp", "#include \"b.h\""}, {"style/b.h", ""}}).size(), 1U);
}

TEST(Layering, aFileOutsideTheKnownFoldersIsAFault) {
  EXPECT_EQ(faults(faultyArrows, {{"util/a.cpp", ""}}).size(), 1U);
}

TEST(Layering, aRingOfIncludesIsTold) {
  const auto found = faults(includeLoops, {{"style/a.h", "#include \"style/b.h\"\n"},
                                           {"style/b.h", "#include \"style/c.h\"\n"},
                                           {"style/c.h", "#include \"style/a.h\"\n"},
                                           {"style/d.h", "#include \"style/c.h\"\n"}});
  EXPECT_EQ(joined(found), "style/a.h:1: includes itself through style/b.h, style/c.h\n");
}

TEST(Layering, aDiamondIsNoRing) {
  EXPECT_TRUE(faults(includeLoops, {{"app/a.h", "#include \"style/b.h\"\n#include \"style/c.h\"\n"},
                                    {"style/b.h", "#include \"style/d.h\"\n"},
                                    {"style/c.h", "#include \"style/d.h\"\n"},
                                    {"style/d.h", ""}})
                  .empty());
}

TEST(Layering, aHeaderOfTheCoreMayIncludeTheStandardLibraryAlone) {
  EXPECT_TRUE(faults(foreignHeaders, {{"app/a.h", "#include <string>\n#include <cstdint>\n"}}).empty());
  for (const char* name : {"expat.h", "unistd.h", "sys/stat.h", "QWidget", "unicode/uchar.h", "string.h"}) {
    const std::string line = "#include <" + std::string(name) + ">\n";
    EXPECT_EQ(faults(foreignHeaders, {{"platform/posix/a.h", line}}).size(), 1U) << name;
    EXPECT_TRUE(faults(foreignHeaders, {{"platform/posix/a.cpp", line}}).empty()) << name;
    EXPECT_TRUE(faults(foreignHeaders, {{"qt/a.h", line}}).empty()) << name;
  }
}

TEST(Layering, aSecondFileOfALibraryIsAFault) {
  const auto found = faults(spreadLibraries, {{"platform/text/a.cpp", "#include <expat.h>\n"},
                                              {"style/b.cpp", "#include <expat.h>\n#include <unicode/uchar.h>\n"}});
  EXPECT_EQ(joined(found), "style/b.cpp:1: <expat.h> belongs to platform/text/a.cpp alone\n");
}

TEST(Layering, aHeaderOfTheSystemBelongsToItsFolder) {
  for (const char* name : {"unistd.h", "sys/stat.h", "fcntl.h", "pwd.h", "dirent.h"}) {
    const std::string line = "#include <" + std::string(name) + ">\n";
    for (const char* file : {"app/a.cpp", "console/verbs/a.cpp", "platform/services/a.cpp", "qt/a.cpp"}) {
      EXPECT_EQ(faults(spreadSystem, {{file, line}}).size(), 1U) << file << " " << name;
    }
    for (const char* file : {"platform/posix/a.cpp", "qt/services/bus_probe.cpp", "tests/a.cpp"}) {
      EXPECT_TRUE(faults(spreadSystem, {{file, line}}).empty()) << file << " " << name;
    }
  }
}

TEST(Layering, theToolkitStaysInItsFolder) {
  EXPECT_EQ(faults(spreadLibraries, {{"console/a.cpp", "#include <QString>\n"}}).size(), 1U);
  EXPECT_TRUE(faults(spreadLibraries, {{"qt/a.cpp", "#include <QString>\n"}}).empty());
}

}  // namespace
}  // namespace tarvo
