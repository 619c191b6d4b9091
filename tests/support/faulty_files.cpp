// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/support/faulty_files.h"

#include <utility>

namespace tarvo::test {

Result<> FaultyFiles::forbid(const Use& use, const std::function<Result<>()>&) {
  return Failure{use.path, Attempt::write, std::make_error_code(std::errc::permission_denied)};
}

void FaultyFiles::disturb(std::size_t use, Disturbance disturbance) {
  uses_.clear();
  disturbed_ = use;
  disturbance_ = std::move(disturbance);
}

void FaultyFiles::forget() { disturb(0, nullptr); }

Result<> FaultyFiles::run(Operation operation, const std::string& path,
                          const std::function<Result<>()>& perform) const {
  uses_.push_back({operation, path});
  const bool isDisturbed = disturbance_ && uses_.size() == disturbed_ + 1;
  return isDisturbed ? disturbance_(Use(uses_.back()), perform) : perform();
}

Result<std::vector<std::string>> FaultyFiles::list(const DiskPath& folder) const {
  std::vector<std::string> names;
  const Result<> listed = run(Operation::list, folder.text(), [&]() -> Result<> {
    auto found = disk_.list(folder);
    if (!found) return found.error();
    names = std::move(*found);
    return {};
  });
  if (!listed) return listed.error();
  return names;
}

Result<> FaultyFiles::makeFolder(const DiskPath& path) {
  return run(Operation::makeFolder, path.text(), [&] { return disk_.makeFolder(path); });
}

Result<> FaultyFiles::copyAs(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) {
  return run(Operation::copy, to.text(), [&] { return disk_.copyAs(from, to, codes); });
}

Result<> FaultyFiles::makeFolderOf(const std::vector<DiskPath>& items, const DiskPath& folder) {
  return run(Operation::makeFolderOf, folder.text(), [&] { return disk_.makeFolderOf(items, folder); });
}

Result<> FaultyFiles::remove(const DiskPath& path) {
  return run(Operation::remove, path.text(), [&] { return disk_.remove(path); });
}

Result<> FaultyFiles::removeEmptyFolder(const DiskPath& path) {
  return run(Operation::removeEmptyFolder, path.text(), [&] { return disk_.removeEmptyFolder(path); });
}

}  // namespace tarvo::test
