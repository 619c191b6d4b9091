// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/services/result.h"
#include "platform/text/paths.h"
#include "style/dictionary_kind.h"

namespace tarvo {

class FileService;
class Locations;
class Texts;

// What to look for in a folder of dictionaries.
struct DictionaryScan {
  const FileService& files;
  const Texts& texts;
  const Locations& locations;
  DiskPath folder;
  DictionaryKind kind = DictionaryKind::technical;
  Direction direction = Direction::japaneseToEnglish;

  struct Found {
    std::vector<std::string> names;
    // Why there may be more: the folder, the type code of a file, or what says which medical ones are installed cannot
    // be read.
    std::optional<Failure> unread;
  };
  // The names in the folder that are dictionaries of the kind, in the order of the listing; none when the folder cannot
  // be listed, and one that is not there is an empty one. Folders and hidden names count like any other. Extensions are
  // compared ignoring case; a technical dictionary may have the type code 'TRjt' instead, and has a name that a style
  // file can hold. Files of the Corwell medical dictionary are left out while its data is known not to be installed,
  // and files under its Japanese display names always.
  Found find() const;
};

}  // namespace tarvo
