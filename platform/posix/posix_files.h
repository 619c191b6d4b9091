// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/file_service.h"

// The real disk of a POSIX system. Every path goes through Locations first.
namespace tarvo {

class Locations;

class PosixFiles : public FileService {
 public:
  explicit PosixFiles(const Locations& locations);
  Result<Kind> kind(const std::string& path) const override;
  Result<Kind> ownKind(const std::string& path) const override;
  Result<> checkWritable(const std::string& folder) const override;
  Result<std::string> read(const std::string& path) const override;
  Result<> write(const std::string& path, std::string_view bytes) override;
  Result<> keepUnreadable(const std::string& path) override;
  Result<std::vector<std::string>> list(const std::string& folder) const override;
  Result<> makeFolder(const std::string& path) override;
  Result<> copy(const std::string& from, const std::string& to) override;
  Result<> remove(const std::string& path) override;
  Result<> removeEmptyFolder(const std::string& path) override;
  Result<FourCharCode> typeCode(const std::string& path) const override;
  Result<> setCodes(const std::string& path, FourCharCode type, FourCharCode creator) override;

 private:
  // The real path without trailing slashes; a failure of the attempt for a path that names nothing.
  Result<std::string> real(const std::string& path, Attempt attempt) const;
  const Locations& locations_;
};

}  // namespace tarvo
