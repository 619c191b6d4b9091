// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/plist/plist_findings.h"
#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "tests/style/exchange_world.h"
#include "tests/style/mutated_files.h"
#include "tests/style/random_styles.h"
#include "tests/support/sample_styles.h"
#include "tests/support/shell.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {
namespace {

constexpr int filesPerSeed = 2500;

// Whether an option is a number from 0 to the highest; an absent one is what the caller says.
bool isOption(const Dictionary& half, const char* key, int highest, bool ifAbsent) {
  const PropertyList* value = half.find(key);
  if (value == nullptr) return ifAbsent;
  const bool isNumber = value->array() == nullptr && value->dictionary() == nullptr &&
                        !std::holds_alternative<Data>(value->value()) && !std::holds_alternative<Date>(value->value());
  return isNumber && value->integerValue() >= 0 && value->integerValue() <= highest;
}

bool isStyle(const std::string& bytes) {
  const auto value = readPropertyList(bytes);
  if (!value || value->dictionary() == nullptr) return false;
  const Dictionary* ej = value->dictionary()->dictionary("EJ");
  const Dictionary* je = value->dictionary()->dictionary("JE");
  return ej != nullptr && je != nullptr && isOption(*ej, "Opt1", 2, false) && isOption(*ej, "Opt2", 2, false) &&
         isOption(*ej, "Opt3", 2, false) && isOption(*je, "TOpt1", 4, false) && isOption(*je, "TOpt2", 4, false) &&
         isOption(*je, "TOpt3", 3, false) && isOption(*je, "TOpt4", 1, true) && isOption(*je, "TOpt5", 1, true) &&
         unsoundDates(*value->dictionary()).empty();
}

std::string inBinary(const Dictionary& style) {
  const TemporaryFolder folder;
  folder.write("style", writePropertyList(style));
  outputOf(
      "python3 -c 'import plistlib, sys; path = sys.argv[1]; value = plistlib.load(open(path, \"rb\")); "
      "plistlib.dump(value, open(path, \"wb\"), fmt=plistlib.FMT_BINARY)' " +
      test::quoted(folder / "style"));
  return folder.read("style");
}

class MutatedImport : public testing::TestWithParam<unsigned> {
 protected:
  MutatedImport() { world_.open(sampleRoot()); }
  std::vector<std::string> soundFiles() const {
    const Dictionary other = RandomStyles(GetParam()).style();
    std::string utf16 = "\xFF\xFE";
    for (const char c : writePropertyList(importedStyle())) utf16 += {c, '\0'};  // its text is ASCII
    std::vector<std::string> all{writePropertyList(importedStyle()), writePropertyList(importedStyle()),
                                 writePropertyList(other), inBinary(importedStyle()), utf16};
    for (const std::string& sound : all) EXPECT_TRUE(isStyle(sound));
    return all;
  }
  void expectRefusal(const PropertyList& before) {
    EXPECT_EQ(world_.log, Log{"alert ImportPlistErrorHeader / ImportPlistErrorMessage"});
    EXPECT_EQ(PropertyList(world_.store.root()), before);
    EXPECT_EQ(world_.files.writes(), writes_);
  }
  void expectImport(const std::string& bytes) {
    EXPECT_EQ(world_.log, Log{"unreachable"});
    EXPECT_EQ(world_.files.writes(), ++writes_);
    PropertyList expected = *readPropertyList(bytes);
    expected.dictionary()->set("Name", "Beta");
    expected.dictionary()->set("ID", 3);
    EXPECT_EQ(PropertyList(*world_.store.getStyleAtIndex(3)), expected);
    const auto file = readPropertyList(world_.files.bytes("/styles.plist"));
    ASSERT_TRUE(file) << "the style file can be read back";
    EXPECT_EQ(file->dictionary()->array("Style")->size(), 4U);
  }
  ExchangeWorld world_;
  int writes_ = 0;
};

TEST_P(MutatedImport, isRefusedWholeOrTakenWhole) {
  MutatedFiles files(soundFiles(), GetParam());
  int taken = 0;
  for (int i = 0; i < filesPerSeed && !HasFailure(); ++i) {
    const std::string bytes = files.next();
    SCOPED_TRACE("file " + std::to_string(i) + ":\n" + bytes);
    const PropertyList before = world_.store.root();
    world_.files.put("/in.whstyle", bytes);
    world_.log.clear();
    const bool isTaken = world_.import("/in.whstyle", 3, "Beta");
    EXPECT_EQ(isTaken, isStyle(bytes));
    isTaken ? expectImport(bytes) : expectRefusal(before);
    taken += isTaken ? 1 : 0;
  }
  EXPECT_GT(taken, filesPerSeed / 100) << "too few sound ones to tell anything";
  EXPECT_LT(taken, filesPerSeed * 9 / 10) << "too few broken ones to tell anything";
}

INSTANTIATE_TEST_SUITE_P(Seeds, MutatedImport, testing::Values(2009U, 31U, 77U, 4711U));

}  // namespace
}  // namespace tarvo::test
