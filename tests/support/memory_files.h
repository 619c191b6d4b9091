// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "platform/services/file_service.h"

// A disk in memory, for tests that need no real one: what lies where is set up and looked at directly, and any
// operation can be made to fail. Not: links, modes, owners, attributes other than the two codes.
namespace tarvo::test {

class MemoryFiles : public FileService {
 public:
  enum class Operation {
    look,
    read,
    write,
    keepUnreadable,
    list,
    makeFolder,
    copy,
    remove,
    removeEmptyFolder,
    setCodes
  };

  // Every use of the operation fails from now on, on this path or, without one, on any; of a missing right unless
  // another cause is given.
  void refuse(Operation operation, const std::string& path = anyPath, std::errc cause = std::errc::permission_denied);
  void allowAll() { refused_.clear(); }
  // A regular file; folders above it appear with it.
  void put(const std::string& path, std::string_view bytes);
  void putOther(const std::string& path);            // a pipe or a device
  std::string bytes(const std::string& path) const;  // "" when there is no such file
  std::vector<std::string> paths() const;            // everything but "/", ascending
  int writes() const { return writes_; }             // that succeeded

  Result<Kind> kind(const DiskPath& path) const override;
  Result<Kind> ownKind(const DiskPath& path) const override { return kind(path); }
  Result<> checkWritable(const DiskPath& folder) const override;
  Result<Writers> writersOf(const DiskPath&) const override { return Writers::some; }
  Result<std::string> read(const DiskPath& path) const override;
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override;
  Result<FileStamp> stamp(const DiskPath& path) const override;
  Result<> keepUnreadable(const DiskPath& path) override;
  Result<std::vector<std::string>> list(const DiskPath& folder) const override;
  Result<> makeFolder(const DiskPath& path) override;
  Result<> makePrivateFolder(const DiskPath& path) override { return makeFolder(path); }
  Result<> copyAs(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) override;
  Result<> makeFolderOf(const std::vector<DiskPath>& items, const DiskPath& folder) override;
  Result<> move(const DiskPath& from, const DiskPath& to) override;
  Result<> remove(const DiskPath& path) override;
  Result<> removeEmptyFolder(const DiskPath& path) override;
  Result<> sync(const DiskPath&) override { return {}; }
  Result<FourCharCode> typeCode(const DiskPath& path) const override;
  Result<> setCodes(const DiskPath& path, FourCharCode type, FourCharCode creator) override;

 private:
  void putFolder(const std::string& path);
  struct Node {
    Kind kind = Kind::folder;
    std::string bytes;
    std::int64_t written = 0;  // which write of this disk it was
    FourCharCode type = 0, creator = 0;
  };
  static constexpr const char* anyPath = "*";

  // What the test refuses, as a failure of the attempt; nothing when it does not.
  std::optional<Failure> refusal(Operation operation, const std::string& path, Attempt attempt) const;
  Kind kindOf(const std::string& path) const;
  bool isFolder(const std::string& path) const { return kindOf(path) == Kind::folder; }
  std::vector<std::string> below(const std::string& folder) const;  // at any depth

  std::map<std::string, Node> nodes_;
  std::map<std::pair<Operation, std::string>, std::errc> refused_;
  int writes_ = 0;
};

}  // namespace tarvo::test
