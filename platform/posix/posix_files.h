// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/file_service.h"

// The real disk of a POSIX system.
namespace tarvo {

class Locations;

class PosixFiles : public FileService {
 public:
  // Whom folders are for that are made at and below the home; elsewhere they are for everybody.
  enum class HomeFolders { forEverybody, forTheUser };
  // The folder in which the whole product lies is never removed.
  explicit PosixFiles(const Locations& locations, HomeFolders homeFolders = HomeFolders::forEverybody);
  Result<Kind> kind(const DiskPath& path) const override;
  Result<Kind> ownKind(const DiskPath& path) const override;
  Result<> checkWritable(const DiskPath& folder) const override;
  Result<Writers> writersOf(const DiskPath& folder) const override;
  Result<std::string> read(const DiskPath& path) const override;
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override;
  Result<FileStamp> stamp(const DiskPath& path) const override;
  Result<> keepUnreadable(const DiskPath& path) override;
  Result<std::vector<std::string>> list(const DiskPath& folder) const override;
  Result<> makeFolder(const DiskPath& path) override;
  Result<> makePrivateFolder(const DiskPath& path) override;
  Result<> copyAs(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) override;
  Result<> makeFolderOf(const std::vector<DiskPath>& items, const DiskPath& folder) override;
  Result<> move(const DiskPath& from, const DiskPath& to) override;
  Result<> remove(const DiskPath& path) override;
  Result<> removeEmptyFolder(const DiskPath& path) override;
  Result<> sync(const DiskPath& folder) override;
  Result<FourCharCode> typeCode(const DiskPath& path) const override;
  Result<> setCodes(const DiskPath& path, FourCharCode type, FourCharCode creator) override;

 private:
  const Locations& locations_;
  DiskPath privateBelow_;  // empty: no folder is made for the user alone
};

}  // namespace tarvo
