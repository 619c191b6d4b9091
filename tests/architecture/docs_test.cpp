// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <vector>

// What the papers say of files.
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

// Every paper of the project, from its top.
std::vector<std::string> papers() {
  const fs::path top(TARVO_SOURCE_DIR);
  std::vector<std::string> all;
  for (const char* folder : {".", "docs", "sample"}) {
    for (const auto& entry : fs::directory_iterator(top / folder)) {
      if (entry.path().extension() != ".md") continue;
      all.push_back(entry.path().lexically_normal().lexically_relative(top).string());
    }
  }
  return all;
}

// The files to which a paper's links lead, from the top.
std::set<std::string> linksOf(const std::string& paper) {
  std::ifstream file(fs::path(TARVO_SOURCE_DIR) / paper);
  std::set<std::string> links;
  for (std::string line; std::getline(file, line);) {
    for (std::size_t begin = line.find("]("); begin != std::string::npos; begin = line.find("](", begin + 2)) {
      const std::string target = line.substr(begin + 2, line.find(')', begin) - begin - 2);
      links.insert((fs::path(paper).parent_path() / target).lexically_normal().string());
    }
  }
  return links;
}

TEST(Docs, everyLinkOfAPaperLeadsToAFile) {
  EXPECT_GT(papers().size(), 8U);
  for (const std::string& paper : papers()) {
    for (const std::string& link : linksOf(paper)) {
      EXPECT_TRUE(fs::exists(fs::path(TARVO_SOURCE_DIR) / link)) << paper << " leads to " << link;
    }
  }
}

TEST(Docs, theFrontPageLeadsToEveryPaper) {
  const std::set<std::string> links = linksOf("README.md");
  for (const std::string& paper : papers()) EXPECT_TRUE(paper == "README.md" || links.contains(paper)) << paper;
}

}  // namespace
}  // namespace tarvo
