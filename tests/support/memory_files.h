// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "platform/services/file_service.h"

// A disk in memory, for tests that need no real one: what lies where is set up and looked at directly, and any
// operation can be made to fail. Not: links, modes, owners, attributes other than the two codes.
namespace tarvo::test {

class MemoryFiles : public FileService {
 public:
  enum class Operation { read, write, keepUnreadable, list, makeFolder, copy, remove, removeEmptyFolder, setCodes };

  // Every use of the operation fails from now on, on this path or, without one, on any.
  void refuse(Operation operation, const std::string& path = anyPath);
  void allowAll() { refused_.clear(); }
  // A regular file; folders above it appear with it.
  void put(const std::string& path, std::string_view bytes);
  void putOther(const std::string& path);            // a pipe or a device
  std::string bytes(const std::string& path) const;  // "" when there is no such file
  std::vector<std::string> paths() const;            // everything but "/", ascending
  int writes() const { return writes_; }             // that succeeded

  Kind kind(const std::string& path) const override;
  bool isLink(const std::string&) const override { return false; }
  bool isWritable(const std::string& folder) const override { return isFolder(folder); }
  std::optional<std::string> read(const std::string& path) const override;
  bool write(const std::string& path, std::string_view bytes) override;
  bool keepUnreadable(const std::string& path) override;
  std::optional<std::vector<std::string>> list(const std::string& folder) const override;
  bool makeFolder(const std::string& path) override;
  bool copy(const std::string& from, const std::string& to) override;
  bool remove(const std::string& path) override;
  bool removeEmptyFolder(const std::string& path) override;
  FourCharCode typeCode(const std::string& path) const override;
  bool setCodes(const std::string& path, FourCharCode type, FourCharCode creator) override;

 private:
  struct Node {
    Kind kind = Kind::folder;
    std::string bytes;
    FourCharCode type = 0, creator = 0;
  };
  static constexpr const char* anyPath = "*";

  bool isRefused(Operation operation, const std::string& path) const;
  bool isFolder(const std::string& path) const { return kind(path) == Kind::folder; }
  std::vector<std::string> below(const std::string& folder) const;  // at any depth

  std::map<std::string, Node> nodes_;
  std::set<std::pair<Operation, std::string>> refused_;
  int writes_ = 0;
};

}  // namespace tarvo::test
