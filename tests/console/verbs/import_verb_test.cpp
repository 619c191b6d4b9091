// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <filesystem>
#include <string>

#include "tests/console/verbs/verb_test.h"

// What an import tells: why a file is refused, and what of a style does not come into its own here.
namespace tarvo::test {
namespace {

class ImportVerb : public VerbTest {
 protected:
  ImportVerb() { putStyles("root4.plist"); }
  // The sound style with one thing in it replaced.
  std::string fileWith(const std::string& what, const std::string& by) const {
    const TemporaryFolder& folder = root_.folder();
    folder.write("in.whstyle", "");
    std::filesystem::copy_file(scenarioFolder() + "/fixtures/import/valid.whstyle", folder / "in.whstyle",
                               std::filesystem::copy_options::overwrite_existing);
    std::string bytes = folder.read("in.whstyle");
    const std::size_t at = bytes.find(what);
    EXPECT_NE(at, std::string::npos) << what;
    bytes.replace(at, what.size(), by);
    folder.write("in.whstyle", bytes);
    return folder / "in.whstyle";
  }
  void expectRefused(const std::string& file, const std::string& why) const {
    const std::string before = style(1);
    const ToolResult result = run({"style", "import", "1", file});
    EXPECT_EQ(result.err, told(file, "cannot be read; " + why));
    EXPECT_EQ(result.status, 1);
    EXPECT_EQ(style(1), before);
  }
};

TEST_F(ImportVerb, tellsTheLineAndTheColumnOfDamage) {
  expectRefused(fileWith("<key>K</key>", "<key>K</kei>"), "it is no property list (line 39, column 10)");
  expectRefused(fileWith("<integer>99</integer>", "\n<integer>9 9</integer>"),
                "it is no property list (line 20, column 13)");
}

TEST_F(ImportVerb, tellsTheKeyAndTheValueThatIsNotAllowed) {
  const std::string again = "; export the style again";
  expectRefused(fileWith("<integer>2</integer>", "<string>9\x7F</string>"),
                "it is no style: JE/TOpt1 is \"9\\x7F\", allowed is 0 to 4" + again);
  expectRefused(fileWith("<string>v</string>", "<date>2009-02-30T00:00:00Z</date>"),
                "K is no date that other programs read: it is “2009-02-30T00:00:00Z”, allowed is the form "
                "2009-01-31T12:00:00Z in the years 1 to 9999" +
                    again);
}

TEST_F(ImportVerb, tellsThatAFileIsTooLarge) {
  const std::string file = fileWith("</plist>", "</plist>");
  std::filesystem::resize_file(file, (std::uintmax_t{64} << 20) + 1);
  expectRefused(file, "more than 64 MiB are not taken");
}

TEST_F(ImportVerb, listsNamesThatAreNotHereAndNamesThatStandThereTwice) {
  const ToolResult result = run({"style", "import", "1",
                                 fileWith("<string>d.TRet</string>",
                                          "<string>d.TRet</string><string>x&#9;.TRet</string>"
                                          "<string>D.tret</string>")});
  EXPECT_EQ(result.err, told("Alpha", "English to Japanese: not on this disk; the list keeps the names: x\\x09.TRet") +
                            told("Alpha", "English to Japanese: named more than once: D.tret"));
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.status, 0);
  EXPECT_NE(style(1).find(R"("TD":["d.TRet","x\t.TRet","D.tret"])"), std::string::npos) << style(1);
}

TEST_F(ImportVerb, saysNothingOfAStyleThatIsWholeHere) {
  EXPECT_EQ(run({"style", "import", "1", "fixtures/import/valid.whstyle"}).err, "");
}

}  // namespace
}  // namespace tarvo::test
