// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "style/direction.h"

// Medical dictionaries that can be installed beside the engine: the first start after one has appeared adds it to the
// styles.
namespace tarvo {

class FileService;
class Locations;
class ProductPaths;
class StyleStore;
class Texts;
class UserDefaults;

class MedicalDictionaries {
 public:
  // Not owned. No settings are flushed once the store is gone.
  struct Services {
    const FileService& files;
    const Locations& locations;
    const ProductPaths& paths;
    const Texts& texts;
    UserDefaults& defaults;
    StyleStore& store;
  };
  explicit MedicalDictionaries(const Services& services) : with_(services) {}
  // Inserts those that are installed and were never inserted, as far as the settings are known and the folder of the
  // direction's dictionaries is not out of reach. The flags of those that were: where there are any, a list may have
  // changed and the style file has to be written.
  std::vector<std::string_view> insertInstalled();
  // Whether a start inserts a file of that name, letter case aside, into lists of the direction.
  bool inserts(Direction direction, const std::string& fileName) const;
  // Sets these flags, so that they are not inserted again, and flushes the settings. On the disk they are from the
  // first flush on after the styles with the dictionaries have been written in this run: whatever stops the program
  // before, the next start inserts them.
  void remember(const std::vector<std::string_view>& flags);
  // Names are looked up in the text table once more.
  void insertCorwell(Direction direction, std::string_view techName, std::string_view abbrevName);
  void insertTekado(Direction direction, std::string_view techName);

 private:
  // word: text key of the word that tells the dictionary in a list.
  void insert(Direction direction, std::string_view word, const std::string& name,
              const std::optional<std::string>& abbreviation);
  bool isDue(std::string_view dataPathKey, std::string_view flag, Direction direction) const;
  Services with_;
};

}  // namespace tarvo
