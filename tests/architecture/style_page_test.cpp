// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>
#include <vector>

#include "style/option_table.h"

// docs/style-file.md against the keys that the program reads and writes.
namespace tarvo {
namespace {

namespace fs = std::filesystem;

std::string textOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

const std::string& page() {
  static const std::string text = textOf(TARVO_SOURCE_DIR "/docs/style-file.md");
  return text;
}

bool names(const std::string& key) { return page().find("`" + key + "`") != std::string::npos; }

// The last row of a table that begins with the key: that of the values.
std::string valuesOf(const std::string& key) {
  const std::size_t begin = page().rfind("\n| `" + key + "` |");
  return begin != std::string::npos ? page().substr(begin, page().find('\n', begin + 1) - begin) : "";
}

// What the parts of a text that fit the expression hold in its first group.
std::set<std::string> found(const std::string& text, const std::string& expression) {
  std::set<std::string> all;
  const std::regex form(expression);
  for (std::sregex_iterator hit(text.begin(), text.end(), form), end; hit != end; ++hit) all.insert((*hit)[1]);
  return all;
}

TEST(StylePage, namesEveryKeyOfTheStyleFile) {
  const std::set<std::string> keys =
      found(textOf(TARVO_SOURCE_DIR "/style/style_keys.h"), R"re(string_view \w+ = "([^"/]+)")re");
  EXPECT_GT(keys.size(), 15U);
  for (const std::string& key : keys) EXPECT_TRUE(key == "NomalStyle" || names(key)) << key;
}

TEST(StylePage, tellsTheRangeOfEveryOptionWithAnIndex) {
  for (const IndexOption& option : indexOptions()) {
    const std::string row = valuesOf(std::string(option.key));
    EXPECT_NE(row.find("`" + std::to_string(option.itemCount - 1) + "`"), std::string::npos) << option.key;
    EXPECT_EQ(row.find("`" + std::to_string(option.itemCount) + "`"), std::string::npos) << option.key;
    const std::string range = "integer 0–" + std::to_string(option.itemCount - 1);
    const std::string start =
        "| `" + std::string(option.key) + "` | `" + std::string(halfKey(option.direction)) + "` | ";
    EXPECT_NE(page().find(start + range), std::string::npos) << option.key;
  }
}

TEST(StylePage, tellsEveryValueOfTheDetailedOptions) {
  for (const DetailOption& option : detailOptions()) {
    const std::string row = valuesOf(std::string(option.key));
    std::set<std::string> told = found(row, "`([^`]+)`"), known{std::string(option.key)};
    for (const std::string_view value : option.choices()) known.insert(std::string(value));
    EXPECT_EQ(told, known) << option.key;
  }
}

TEST(StylePage, namesEveryKeyOfAnAddin) {
  const std::set<std::string> keys =
      found(textOf(TARVO_SOURCE_DIR "/install/addin_entry.h"), R"re(const char\* \w+ = "([A-Z][^"]+)")re");
  EXPECT_GT(keys.size(), 7U);
  for (const std::string& key : keys) EXPECT_TRUE(key.size() == 4 || names(key)) << key;
}

// Every key that a line of the program hands to the settings: spelled there, or by the name of a constant.
class SettingsKeys {
 public:
  SettingsKeys() {
    for (const char* room : {"app", "style", "dict", "install"}) {
      for (const auto& entry : fs::recursive_directory_iterator(fs::path(TARVO_SOURCE_DIR) / room)) {
        if (entry.is_regular_file()) sources_ += textOf(entry.path());
      }
    }
    for (const std::string& word :
         found(sources_, R"re([dD]efaults\w*(?:\(\))?\.(?:set|find|string|remove)\(([^,)]+)[,)])re")) {
      resolve(word);
    }
  }
  std::set<std::string> keys, unknown;

 private:
  void resolve(const std::string& word) {
    if (word.starts_with('"')) {
      keys.insert(word.substr(1, word.size() - 2));
      return;
    }
    const std::string name = word.substr(word.rfind(':') + 1);
    const std::set<std::string> values = found(sources_, "\\b" + name + R"re((?:\[\])? = "([^"]+)")re");
    (values.empty() ? unknown : keys).insert(values.empty() ? name : *values.begin());
  }
  std::string sources_;
};

TEST(StylePage, namesEveryKeyOfTheSettings) {
  const SettingsKeys settings;
  EXPECT_GT(settings.keys.size(), 11U);
  for (const std::string& key : settings.keys) EXPECT_TRUE(names(key)) << key;
  // The four flags of the medical dictionaries are handed on as an argument.
  EXPECT_EQ(settings.unknown, std::set<std::string>{"flag"});
  const std::set<std::string> flags =
      found(textOf(TARVO_SOURCE_DIR "/dict/medical_dictionaries.cpp"), R"re("(\w+1st[EJ])")re");
  EXPECT_EQ(flags.size(), 4U);
  for (const std::string& key : flags) EXPECT_TRUE(names(key)) << key;
}

}  // namespace
}  // namespace tarvo
