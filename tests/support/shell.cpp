// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/shell.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

namespace tarvo::test {

std::string outputOf(const std::string& command) {
  std::FILE* pipe = ::popen(command.c_str(), "r");
  if (pipe == nullptr) {
    ADD_FAILURE() << "could not run " << command;
    return "";
  }
  std::string output;
  std::array<char, 4096> buffer{};
  while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), pipe)) {
    output.append(buffer.data(), count);
  }
  EXPECT_EQ(::pclose(pipe), 0) << command;
  return output;
}

std::string quoted(std::string_view text) {
  std::string word = "'";
  for (const char c : text) c == '\'' ? word += "'\\''" : word += c;
  return word + "'";
}

}  // namespace tarvo::test
