// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/file_service.h"

// The real disk of a POSIX system.
namespace tarvo {

class Locations;

class PosixFiles : public FileService {
 public:
  // The folder in which the whole product lies is never removed.
  explicit PosixFiles(const Locations& locations);
  Result<Kind> kind(const DiskPath& path) const override;
  Result<Kind> ownKind(const DiskPath& path) const override;
  Result<> checkWritable(const DiskPath& folder) const override;
  Result<std::string> read(const DiskPath& path) const override;
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override;
  Result<FileStamp> stamp(const DiskPath& path) const override;
  Result<> keepUnreadable(const DiskPath& path) override;
  Result<std::vector<std::string>> list(const DiskPath& folder) const override;
  Result<> makeFolder(const DiskPath& path) override;
  Result<> copy(const DiskPath& from, const DiskPath& to) override;
  Result<> move(const DiskPath& from, const DiskPath& to) override;
  Result<> remove(const DiskPath& path) override;
  Result<> removeEmptyFolder(const DiskPath& path) override;
  Result<FourCharCode> typeCode(const DiskPath& path) const override;
  Result<> setCodes(const DiskPath& path, FourCharCode type, FourCharCode creator) override;

 private:
  const Locations& locations_;
};

}  // namespace tarvo
