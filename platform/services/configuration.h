// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "platform/plist/property_list.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// What the user and the machine's administrator set up for every run: property lists whose root is a dictionary.
namespace tarvo {

class FileService;

namespace configuration_keys {
inline constexpr const char* privateFolders = "PrivateFolders";  // boolean: folders made in homes are the user's alone
// boolean: credentials may reach a style service without encryption
inline constexpr const char* allowPlainPasswords = "AllowPlainPasswords";
// text: PEM file of the certificates by which a style service is trusted, in the place of the system's
inline constexpr const char* authorities = "CAFile";
}  // namespace configuration_keys

class Configuration {
 public:
  // paths: in the order in which they count. Reads those that are there; files is asked only here.
  Configuration(const FileService& files, const std::vector<DiskPath>& paths);

  // The first file that is there and cannot be read. Nothing of it counts, so nothing should be done: it may hold what
  // protects the user.
  const std::optional<Failure>& unread() const { return unread_; }

  // As the first file says that has the key; null where none has it.
  const PropertyList* find(std::string_view key) const;
  const DiskPath* fileOf(std::string_view key) const;
  // False where no file has the key.
  bool boolean(std::string_view key) const;
  // "" where no file has the key, or something else than a text.
  std::string text(std::string_view key) const;

 private:
  struct File {
    DiskPath path;
    Dictionary values;
  };
  const File* fileWith(std::string_view key) const;
  std::vector<File> files_;
  std::optional<Failure> unread_;
};

}  // namespace tarvo
