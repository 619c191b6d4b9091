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
  enum class Operation { list, makeFolder, copy, remove, removeEmptyFolder };
  struct Use {
    Operation operation;
    std::string path;  // of a copy: where it goes
  };
  // Runs in the place of an operation: perform does what was asked for. False makes the operation fail.
  using Disturbance = std::function<bool(const Use& use, const std::function<bool()>& perform)>;

  explicit FaultyFiles(FileService& disk) : disk_(disk) {}
  const std::vector<Use>& uses() const { return uses_; }
  // Counts from here on; the use with this number, from 0, is disturbed.
  void disturb(std::size_t use, Disturbance disturbance);
  void forget();  // no disturbance any more, nothing counted

  Kind kind(const std::string& path) const override { return disk_.kind(path); }
  bool isLink(const std::string& path) const override { return disk_.isLink(path); }
  bool isWritable(const std::string& folder) const override { return disk_.isWritable(folder); }
  std::optional<std::string> read(const std::string& path) const override { return disk_.read(path); }
  bool write(const std::string& path, std::string_view bytes) override { return disk_.write(path, bytes); }
  bool keepUnreadable(const std::string& path) override { return disk_.keepUnreadable(path); }
  std::optional<std::vector<std::string>> list(const std::string& folder) const override;
  bool makeFolder(const std::string& path) override;
  bool copy(const std::string& from, const std::string& to) override;
  bool remove(const std::string& path) override;
  bool removeEmptyFolder(const std::string& path) override;
  FourCharCode typeCode(const std::string& path) const override { return disk_.typeCode(path); }
  bool setCodes(const std::string& path, FourCharCode type, FourCharCode creator) override {
    return disk_.setCodes(path, type, creator);
  }

 private:
  bool run(Operation operation, const std::string& path, const std::function<bool()>& perform) const;
  FileService& disk_;
  mutable std::vector<Use> uses_;
  std::size_t disturbed_ = 0;
  Disturbance disturbance_;
};

}  // namespace tarvo::test
