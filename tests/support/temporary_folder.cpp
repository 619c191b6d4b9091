// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/xattr.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace tarvo::test {
namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() : TemporaryFolder(fs::temp_directory_path().string()) {}

TemporaryFolder::TemporaryFolder(const std::string& above) : path_(above + "/tarvo 試験 XXXXXX") {
  if (::mkdtemp(path_.data()) == nullptr) {
    ADD_FAILURE() << "no temporary folder in " << above;
    path_.clear();
  }
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code error;
  if (!path_.empty()) fs::remove_all(path_, error);
}

void TemporaryFolder::write(std::string_view rest, std::string_view bytes) const {
  const fs::path file = *this / rest;
  fs::create_directories(file.parent_path());
  std::ofstream stream(file, std::ios::binary | std::ios::trunc);
  stream << bytes;
  stream.close();
  EXPECT_TRUE(stream) << "could not write " << file;
}

void TemporaryFolder::makeFolder(std::string_view rest) const { fs::create_directories(*this / rest); }

std::string TemporaryFolder::read(std::string_view rest) const {
  std::ifstream stream(*this / rest, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

bool TemporaryFolder::exists(std::string_view rest) const {
  return fs::symlink_status(*this / rest).type() != fs::file_type::not_found;
}

std::vector<std::string> TemporaryFolder::names(std::string_view rest) const {
  std::vector<std::string> all;
  for (const auto& entry : fs::directory_iterator(*this / rest)) all.push_back(entry.path().filename().string());
  std::sort(all.begin(), all.end());
  return all;
}

std::uint32_t TemporaryFolder::mode(std::string_view rest) const {
  return static_cast<std::uint32_t>(fs::status(*this / rest).permissions());
}

bool keepsAttributes(const TemporaryFolder& folder) {
  folder.write("attribute probe", "");
  const std::string file = folder / "attribute probe";
  const bool kept = ::setxattr(file.c_str(), "user.tarvo", "x", 1, 0) == 0;
  fs::remove(file);
  return kept;
}

std::string placeForAttributes() {
  for (const fs::path& above : {fs::temp_directory_path(), fs::current_path()}) {
    if (keepsAttributes(TemporaryFolder(above.string()))) return above.string();
  }
  return "";
}

}  // namespace tarvo::test
