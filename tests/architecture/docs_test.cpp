// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

// What the architecture page says of files.
namespace tarvo {
namespace {

namespace fs = std::filesystem;

// The words between backticks in the table of features.
std::vector<std::string> filesOfFeatures() {
  std::ifstream page(TARVO_SOURCE_DIR "/docs/architecture.md");
  std::vector<std::string> files;
  bool inTable = false;
  for (std::string line; std::getline(page, line);) {
    if (line.starts_with("## ")) inTable = line == "## Which file holds what";
    if (!inTable) continue;
    for (std::size_t begin = line.find('`'); begin != std::string::npos; begin = line.find('`', begin)) {
      const std::size_t end = line.find('`', begin + 1);
      if (end == std::string::npos) break;
      files.push_back(line.substr(begin + 1, end - begin - 1));
      begin = end + 1;
    }
  }
  return files;
}

TEST(Docs, everyFileOfTheTableOfFeaturesIsThere) {
  const std::vector<std::string> files = filesOfFeatures();
  EXPECT_GT(files.size(), 40U);
  for (const std::string& file : files) {
    const std::string path = std::string(TARVO_SOURCE_DIR "/") + file;
    EXPECT_TRUE(fs::exists(path) || fs::exists(path + ".cpp")) << file;
  }
}

}  // namespace
}  // namespace tarvo
