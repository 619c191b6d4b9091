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
class StyleStore;
class Texts;
class UserDefaults;

class MedicalDictionaries {
 public:
  MedicalDictionaries(const FileService& files, const Locations& locations, const Texts& texts, UserDefaults& defaults,
                      StyleStore& store);
  // Inserts those that are installed and were never inserted, as far as the settings are known. The flags of those that
  // were: where there are any, a list may have changed and the style file has to be written.
  std::vector<std::string_view> insertInstalled();
  // Sets these flags, so that they are not inserted again, and flushes the settings.
  void remember(const std::vector<std::string_view>& flags);
  // Names are looked up in the text table once more.
  void insertCorwell(Direction direction, std::string_view techName, std::string_view abbrevName);
  void insertTekado(Direction direction, std::string_view techName);

 private:
  // word: text key of the word that tells the dictionary in a list.
  void insert(Direction direction, std::string_view word, const std::string& name,
              const std::optional<std::string>& abbreviation);
  const FileService& files_;
  const Locations& locations_;
  const Texts& texts_;
  UserDefaults& defaults_;
  StyleStore& store_;
};

}  // namespace tarvo
