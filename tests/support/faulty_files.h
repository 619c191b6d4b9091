// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/services/file_service.h"

// A real disk on which one chosen operation goes wrong. Only what makes, copies, removes and lists is counted; what
// merely looks is passed on.
namespace tarvo::test {

class FaultyFiles : public FileService {
 public:
  enum class Operation { list, makeFolder, copy, makeFolderOf, remove, removeEmptyFolder };
  struct Use {
    Operation operation;
    std::string path;  // of a copy: where it goes
  };
  // Runs in the place of an operation: perform does what was asked for.
  // A failure makes the operation fail.
  using Disturbance = std::function<Result<>(const Use& use, const std::function<Result<>()>& perform)>;

  // A disturbance: nobody may.
  static Result<> forbid(const Use& use, const std::function<Result<>()>& perform);

  explicit FaultyFiles(FileService& disk) : disk_(disk) {}
  const std::vector<Use>& uses() const { return uses_; }
  // Counts from here on; the use with this number, from 0, is disturbed.
  void disturb(std::size_t use, Disturbance disturbance);
  void forget();  // no disturbance any more, nothing counted

  Result<Kind> kind(const DiskPath& path) const override { return disk_.kind(path); }
  Result<Kind> ownKind(const DiskPath& path) const override { return disk_.ownKind(path); }
  Result<> checkWritable(const DiskPath& folder) const override { return disk_.checkWritable(folder); }
  Result<Writers> writersOf(const DiskPath& folder) const override { return disk_.writersOf(folder); }
  Result<std::string> read(const DiskPath& path) const override { return disk_.read(path); }
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override {
    return disk_.replace(path, bytes, keeping);
  }
  Result<FileStamp> stamp(const DiskPath& path) const override { return disk_.stamp(path); }
  Result<> keepUnreadable(const DiskPath& path) override { return disk_.keepUnreadable(path); }
  Result<std::vector<std::string>> list(const DiskPath& folder) const override;
  Result<> makeFolder(const DiskPath& path) override;
  Result<> makePrivateFolder(const DiskPath& path) override { return disk_.makePrivateFolder(path); }
  Result<> copyAs(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) override;
  Result<> makeFolderOf(const std::vector<DiskPath>& items, const DiskPath& folder) override;
  Result<> move(const DiskPath& from, const DiskPath& to) override { return disk_.move(from, to); }
  Result<> remove(const DiskPath& path) override;
  Result<> removeEmptyFolder(const DiskPath& path) override;
  Result<> sync(const DiskPath& folder) override { return disk_.sync(folder); }
  Result<FourCharCode> typeCode(const DiskPath& path) const override { return disk_.typeCode(path); }
  Result<> setCodes(const DiskPath& path, FourCharCode type, FourCharCode creator) override {
    return disk_.setCodes(path, type, creator);
  }

 private:
  Result<> run(Operation operation, const std::string& path, const std::function<Result<>()>& perform) const;
  FileService& disk_;
  mutable std::vector<Use> uses_;
  std::size_t disturbed_ = 0;
  Disturbance disturbance_;
};

}  // namespace tarvo::test
