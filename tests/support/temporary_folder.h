// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/text/paths.h"

// A folder on the real disk that is gone with this object. Its name holds a blank and Japanese characters, as users'
// folders do. Failures to prepare it are failures of the test.
namespace tarvo::test {

class TemporaryFolder {
 public:
  TemporaryFolder();                                   // where the system keeps such folders
  explicit TemporaryFolder(const std::string& above);  // in a folder of its own below that one
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder();

  const std::string& path() const { return path_; }
  std::string operator/(std::string_view rest) const { return path_ + "/" + std::string(rest); }
  DiskPath at(std::string_view rest) const { return DiskPath(*this / rest); }

  // Below the folder, with plain standard means; write and makeFolder create what is missing above.
  void write(std::string_view rest, std::string_view bytes) const;
  void makeFolder(std::string_view rest) const;
  std::string read(std::string_view rest) const;                     // "" when there is none
  bool exists(std::string_view rest) const;                          // links count for themselves
  std::vector<std::string> names(std::string_view rest = "") const;  // ascending
  std::uint32_t mode(std::string_view rest) const;                   // permission bits, links followed

 private:
  std::string path_;
};

// Whether files in the folder can carry extended attributes.
bool keepsAttributes(const TemporaryFolder& folder);
// A place whose disk keeps extended attributes, to be used as TemporaryFolder's argument: the system's temporary folder
// or, where that refuses, the working folder; "" when both refuse.
std::string placeForAttributes();

}  // namespace tarvo::test
