// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>

#include "tests/console/script/script_text.h"

// Scripts that run to their end: what they print and what they do to the disk.
namespace tarvo::test {
namespace {

TEST(Script, printsOneObjectALine) {
  const ToolResult result =
      runText("default b 2\ndefault b\ndisk root:/nothing\ndefault a [1,2.50,\"あ\"] \ndefault a\n");
  EXPECT_EQ(result.out,
            "{\"default\":\"b\",\"value\":2}\n{\"kind\":\"absent\",\"path\":\"root:/nothing\"}\n"
            "{\"default\":\"a\",\"value\":[1,2.5,\"あ\"]}\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
}

TEST(Script, startsAtItsOwnFolder) {
  const TemporaryFolder folder;
  folder.write("scripts/x.scenario", "disk data.txt\n");
  folder.write("scripts/data.txt", "text");
  folder.makeFolder("root");
  const ToolResult result = runTool({"--root", "root", "run", "scripts/x.scenario"}, folder.path());
  EXPECT_EQ(result.out, "{\"kind\":\"file\",\"mode\":\"0644\",\"path\":\"" + folder / "scripts/data.txt" +
                            "\",\"text\":\"text\"}\n");
}

TEST(Script, looksAtTheDiskInEveryForm) {
  const ToolResult result = runText(
      "file write root:/a/plain.txt \"a\\nb\"\ndisk root:/a/plain.txt\nfile mode root:/a/plain.txt 0600\n"
      "disk root:/a/plain.txt\ndisk root:/a\nfile folder home:/b\nfile mode home:/b 0700\ndisk home:/b\n");
  EXPECT_EQ(result.out,
            "{\"kind\":\"file\",\"mode\":\"0644\",\"path\":\"root:/a/plain.txt\",\"text\":\"a\\nb\"}\n"
            "{\"kind\":\"file\",\"mode\":\"0600\",\"path\":\"root:/a/plain.txt\",\"text\":\"a\\nb\"}\n"
            "{\"kind\":\"folder\",\"mode\":\"0777\",\"names\":[\"plain.txt\"],\"path\":\"root:/a\"}\n"
            "{\"kind\":\"folder\",\"mode\":\"0700\",\"names\":[],\"path\":\"home:/b\"}\n");
  EXPECT_EQ(result.err, "");
}

TEST(Script, takesAnAbsolutePathAsItStandsAndNotBelowTheRoot) {
  const TemporaryFolder outside;
  outside.write("a.txt", "x");
  const std::string path = outside / "a.txt", copy = outside / "b/c.txt";
  const std::string shown = "\"path\":\"" + path + "\"";
  const ToolResult result =
      runText("disk \"" + path + "\"\nfile copy \"" + path + "\" \"" + copy + "\"\ndisk \"root:" + path + "\"\n");
  EXPECT_EQ(result.out, "{\"kind\":\"file\",\"mode\":\"0644\"," + shown + ",\"text\":\"x\"}\n" +
                            "{\"kind\":\"absent\",\"path\":\"root:" + path + "\"}\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(outside.read("b/c.txt"), "x");
}

TEST(Script, showsBytesAndLinksOfTheDisk) {
  const ScenarioRoot root("plain");
  root.folder().write("root/bytes", std::string("\0\xFF", 2));
  std::filesystem::create_symlink("bytes", root.root() + "/link");
  std::filesystem::create_symlink("nothing", root.root() + "/dangling");
  const ToolResult result = runTool({"--root", root.root(), "--home", root.home(), "run"}, scenarioFolder(),
                                    "disk root:/bytes\ndisk root:/link\ndisk root:/dangling\n");
  EXPECT_EQ(result.out,
            "{\"hex\":\"00ff\",\"kind\":\"file\",\"mode\":\"0644\",\"path\":\"root:/bytes\"}\n"
            "{\"hex\":\"00ff\",\"kind\":\"link\",\"mode\":\"0644\",\"path\":\"root:/link\"}\n"
            "{\"kind\":\"link\",\"path\":\"root:/dangling\"}\n");
}

TEST(Script, setsSettingsWithoutALogAndReadsThemFromTheFile) {
  const ToolResult result = runText(std::string(prepare) +
                                    "log\nexpect any {\"wrote\":\"tool list\"}\ndefault A \"x\"\nlog\nexpect end\n"
                                    "default A\nexpect {\"default\":\"A\",\"value\":\"x\"}\nquit\ndefault A\n"
                                    "expect {\"default\":\"A\",\"value\":\"x\"}\ndefault A absent\ndefault A\n"
                                    "expect {\"default\":\"A\",\"value\":null}\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
}

TEST(Script, givesTheEngineAStyleFileOrAList) {
  const ToolResult result = runText(
      "engine holds fixtures/root4.plist U0\nengine holds fixtures/root4-list.plist U1\nengine probe t f\n"
      "engine empty\n");
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
}

TEST(Script, mayUseTheRealClock) {
  const ToolResult result = runText(std::string(prepare) + "advance 0.01\nquit\n", {"--clock", "real"});
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.status, 0);
}

}  // namespace
}  // namespace tarvo::test
