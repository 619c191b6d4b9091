// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/installed_files.h"

#include "platform/services/file_service.h"

namespace tarvo {

namespace {

using Kind = FileService::Kind;

class Comparison {
 public:
  explicit Comparison(const FileService& files) : files_(files) {}

  void compare(const DiskPath& installed, const DiskPath& shipped) {
    const Result<Kind> wanted = files_.ownKind(shipped), found = files_.kind(installed);
    if (!wanted || (*wanted != Kind::file && *wanted != Kind::folder)) return;
    if (!found) return found_.push_back(found.error());
    if (*found == Kind::absent) return differ(installed, std::make_error_code(std::errc::no_such_file_or_directory));
    if (*found != *wanted) return differ(installed, Reason::foreign);
    if (*wanted == Kind::folder) return compareFolders(installed, shipped);
    compareFiles(installed, shipped);
  }

  std::vector<Failure> differences() { return std::move(found_); }

 private:
  void differ(const DiskPath& path, std::error_code cause) { found_.push_back({path.text(), Attempt::check, cause}); }

  void compareFolders(const DiskPath& installed, const DiskPath& shipped) {
    const Result<std::vector<std::string>> names = files_.list(shipped);
    if (!names) return found_.push_back(names.error());
    for (const std::string& name : *names) compare(installed / name, shipped / name);
  }

  void compareFiles(const DiskPath& installed, const DiskPath& shipped) {
    const Result<FileStamp> own = files_.stamp(shipped), other = files_.stamp(installed);
    if (!own) return found_.push_back(own.error());
    if (!other) return found_.push_back(other.error());
    if (other->size == 0 && own->size != 0) return differ(installed, Reason::emptied);
    if (other->size != own->size) return differ(installed, Reason::foreign);
    const Result<std::string> bytes = files_.read(shipped), otherBytes = files_.read(installed);
    if (!bytes) return found_.push_back(bytes.error());
    if (!otherBytes) return found_.push_back(otherBytes.error());
    if (*bytes != *otherBytes) differ(installed, Reason::foreign);
  }

  const FileService& files_;
  std::vector<Failure> found_;
};

}  // namespace

std::vector<Failure> differencesOf(const DiskPath& installed, const DiskPath& shipped, const FileService& files) {
  Comparison comparison(files);
  comparison.compare(installed, shipped);
  return comparison.differences();
}

}  // namespace tarvo
