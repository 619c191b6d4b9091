// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_check.h"

#include <gtest/gtest.h>

#include <new>

#include "platform/services/texts.h"
#include "tests/style/exchange_fixture.h"
#include "tests/support/memory_files.h"

// Why a file is no style, for programs and for people.
namespace tarvo::test {
namespace {

using Kind = StyleFault::Kind;
const DiskPath file("/in.whstyle");

StyleFault faultOfBytes(const std::string& bytes) {
  MemoryFiles files;
  files.put(file.text(), bytes);
  const auto record = readStyle(files, file);
  EXPECT_FALSE(record) << bytes;
  return record ? StyleFault{} : record.error();
}
StyleFault faultOf(const PropertyList& style) { return faultOfBytes(writePropertyList(style)); }

Dictionary styleWith(const char* half, const char* key, const PropertyList& value) {
  Dictionary style = importedStyle();
  style.dictionary(half)->set(key, value);
  return style;
}

void expectFault(const StyleFault& fault, Kind kind, const std::string& keys, const std::string& found, int most) {
  EXPECT_EQ(fault.kind, kind) << keys;
  EXPECT_EQ(fault.failure, (Failure{file.text(), Attempt::read, Reason::noStyle}));
  EXPECT_EQ(fault.keys, keys);
  EXPECT_EQ(fault.found, found);
  EXPECT_EQ(fault.most, most);
}

TEST(StyleCheck, namesKeyValueAndWhatIsAllowed) {
  expectFault(faultOf(styleWith("JE", "TOpt3", 4)), Kind::range, "JE/TOpt3", "4", 3);
  expectFault(faultOf(styleWith("EJ", "Opt1", -1)), Kind::range, "EJ/Opt1", "-1", 2);
  expectFault(faultOf(styleWith("EJ", "Opt1", "9 lives")), Kind::range, "EJ/Opt1", "\"9 lives\"", 2);
  expectFault(faultOf(styleWith("JE", "TOpt4", Array{1})), Kind::kind, "JE/TOpt4", "[…]", 1);
  expectFault(faultOf(styleWith("JE", "TOpt4", Data{})), Kind::kind, "JE/TOpt4", "<…>", 1);
  Dictionary style = importedStyle();
  style.dictionary("EJ")->remove("Opt2");
  expectFault(faultOf(style), Kind::absent, "EJ/Opt2", "", 2);
  style.remove("JE");
  expectFault(faultOf(style), Kind::absent, "JE", "", -1);
  style.set("EJ", "text");
  expectFault(faultOf(style), Kind::kind, "EJ", "\"text\"", -1);
}

TEST(StyleCheck, shortensWhatItFound) {
  std::string text;
  for (int i = 0; i < 100; ++i) text += "辞";
  const std::string found = faultOf(styleWith("EJ", "Opt1", "9" + text)).found;
  EXPECT_LT(found.size(), 80U);
  EXPECT_TRUE(found.starts_with("\"9辞") && found.ends_with("辞…\"")) << found;
}

TEST(StyleCheck, namesTheDateThatOthersWouldRefuse) {
  Dictionary inner;
  inner.set("when", Date{"----"});
  expectFault(faultOf(styleWith("JE", "Future", Array{inner})), Kind::date, "JE/Future/0/when", "----", -1);
  expectFault(faultOf(styleWith("EJ", "Future", Date{"10000-01-01T00:00:00Z"})), Kind::date, "EJ/Future",
              "10000-01-01T00:00:00Z", -1);
  MemoryFiles files;
  files.put(file.text(), writePropertyList(styleWith("EJ", "Future", Date{"2009-01-31T12:00:00Z"})));
  EXPECT_TRUE(readStyle(files, file));
}

TEST(StyleCheck, namesThePlaceOfTheDamage) {
  const StyleFault fault = faultOfBytes("<plist>\n<dict>\n<key>EJ</key><dict>");
  EXPECT_EQ(fault.kind, Kind::file);
  EXPECT_EQ(fault.failure, (Failure{file.text(), Attempt::read, Reason::noPropertyList, 3, 20}));
}

TEST(StyleCheck, tellsOfAFileThatIsTooLarge) {
  EXPECT_EQ(faultOfBytes(std::string(std::size_t{64} * 1024 * 1024 + 1, ' ')).failure.cause, Reason::overLimit);
}

class FilesWithoutMemory : public MemoryFiles {
 public:
  Result<std::string> read(const DiskPath&) const override { throw std::bad_alloc(); }
};

TEST(StyleCheck, tellsThatTheMemoryDidNotSuffice) {
  const FilesWithoutMemory files;
  const auto record = readStyle(files, file);
  ASSERT_FALSE(record);
  EXPECT_EQ(record.error().failure.cause, std::errc::not_enough_memory);
  EXPECT_EQ(record.error().failure.path, file.text());
}

TEST(StyleCheck, speaksOfItInWords) {
  Dictionary table;
  table.set("StyleFault.range", "%1 is %2, not 0 to %3");
  table.set("Failure.read", "cannot be read");
  Texts texts;
  texts.overlay(table);
  EXPECT_EQ(joined(styleFaultParts(faultOf(styleWith("EJ", "Opt1", "9 %2")), texts)),
            "cannot be read; EJ/Opt1 is \"9 %2\", not 0 to 2");
}

TEST_F(StyleExchangeTest, whatIsWrongWithAFileStandsBesideTheAlertAndIsTold) {
  Dictionary style = importedStyle();
  style.dictionary("JE")->set("TOpt3", 4);
  EXPECT_FALSE(import(style));
  const std::string details = "/in.whstyle: Failure.read; StyleFault.range";
  EXPECT_EQ(world_.log, Log{importFailed});
  EXPECT_EQ(world_.panels.told, Log{details});
  EXPECT_EQ(world_.panels.alerts.back().details, details);
  EXPECT_EQ(world_.panels.alerts.back().buttons, std::vector<std::string>{"AlertClose"});
}

}  // namespace
}  // namespace tarvo::test
