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
  Kind kind(const std::string& path) const override;
  bool isLink(const std::string& path) const override;
  bool isWritable(const std::string& folder) const override;
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
  // The real path without trailing slashes; nothing for a path that names nothing.
  std::optional<std::string> real(const std::string& path) const;
  const Locations& locations_;
};

}  // namespace tarvo
