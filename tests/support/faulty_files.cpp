// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/faulty_files.h"

#include <utility>

namespace tarvo::test {

void FaultyFiles::disturb(std::size_t use, Disturbance disturbance) {
  uses_.clear();
  disturbed_ = use;
  disturbance_ = std::move(disturbance);
}

void FaultyFiles::forget() { disturb(0, nullptr); }

bool FaultyFiles::run(Operation operation, const std::string& path, const std::function<bool()>& perform) const {
  uses_.push_back({operation, path});
  const bool isDisturbed = disturbance_ && uses_.size() == disturbed_ + 1;
  return isDisturbed ? disturbance_(Use(uses_.back()), perform) : perform();
}

std::optional<std::vector<std::string>> FaultyFiles::list(const std::string& folder) const {
  std::optional<std::vector<std::string>> names;
  const bool listed = run(Operation::list, folder, [&] {
    names = disk_.list(folder);
    return names.has_value();
  });
  return listed ? names : std::nullopt;
}

bool FaultyFiles::makeFolder(const std::string& path) {
  return run(Operation::makeFolder, path, [&] { return disk_.makeFolder(path); });
}

bool FaultyFiles::copy(const std::string& from, const std::string& to) {
  return run(Operation::copy, to, [&] { return disk_.copy(from, to); });
}

bool FaultyFiles::remove(const std::string& path) {
  return run(Operation::remove, path, [&] { return disk_.remove(path); });
}

bool FaultyFiles::removeEmptyFolder(const std::string& path) {
  return run(Operation::removeEmptyFolder, path, [&] { return disk_.removeEmptyFolder(path); });
}

}  // namespace tarvo::test
