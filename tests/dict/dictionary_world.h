// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <initializer_list>
#include <string>
#include <vector>

#include "dict/dict_controller.h"
#include "platform/posix/posix_files.h"
#include "platform/services/bundle.h"
#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/product_paths.h"
#include "platform/services/texts.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

inline constexpr DictionaryKind technical = DictionaryKind::technical, user = DictionaryKind::user,
                                memory = DictionaryKind::memory;
inline constexpr Direction EJ = Direction::englishToJapanese, JE = Direction::japaneseToEnglish;

// A folder of dictionaries on the real disk and what a list model needs beside it. Every text that the model looks up
// differs from its key.
struct DictionaryWorld {
  explicit DictionaryWorld(const std::string& above = std::filesystem::temp_directory_path().string())
      : folder(above), locations("/", folder.path()), files(locations), bundle(files, folder.at("resources"), {"en"}) {
    for (const char* key : {"TechECorwell6", "TechJCorwell6", "NameJCorwell6", "NameJCorwellAbbrev", "NameECorwell6",
                            "NameECorwellAbbrev", "EJCommonUD", "JECommonUD", "EJCommonUTMA", "JECommonUTMA"}) {
      setText(key, "«" + std::string(key) + "»");
    }
    folder.write("resources/EJStationery.eud2", englishTemplate);
    folder.write("resources/JEStationery.jud", japaneseTemplate);
    folder.makeFolder("dictionaries");
  }

  void setText(const std::string& key, const std::string& text) {
    Dictionary table;
    table.set(key, text);
    texts.overlay(table);
  }
  void put(std::initializer_list<const char*> names) const {
    for (const char* name : names) folder.write("dictionaries/" + std::string(name), "");
  }
  void take(const std::string& name) const { std::filesystem::remove_all(path(name)); }
  std::string path(const std::string& name) const { return folder / ("dictionaries/" + name); }
  DiskPath dictionaryFolder() const { return folder.at("dictionaries"); }
  DictController::Services services() { return servicesOver(files); }
  DictController::Services servicesOver(FileService& other) { return {other, texts, bundle, paths, locations}; }
  DictController list(DictionaryKind kind = technical, Direction direction = EJ) {
    DictController controller(services());
    controller.initializeDictController(kind, dictionaryFolder(), direction);
    return controller;
  }

  static constexpr const char* englishTemplate = "empty English dictionary\n";
  static constexpr const char* japaneseTemplate = "empty Japanese dictionary\n";

  TemporaryFolder folder;
  Locations locations;
  PosixFiles files;
  Texts texts;
  Bundle bundle;
  ProductPaths paths{locations, configuration()};

 private:
  Dictionary configuration() const {
    Dictionary values;
    values.set("tarvoPathTechnicalDicEngFolderURL", dictionaryFolder().text());
    values.set("tarvoPathGetAppleyPath.4", "/Applications/Dictionary Tool.app");
    values.set("tarvoPathMemoryEtoJTitle", "Main");
    values.set("tarvoPathMemoryJtoETitle", "Mainj");
    values.set("tarvoPathMemoryEtoJURL", "/x/e");
    values.set("tarvoPathMemoryJtoEURL", "/x/j");
    return values;
  }
};

inline Names entryNames(const DictController& controller) {
  Names names;
  if (!controller.allDictionaries()) return names;
  for (const DictionaryEntry& entry : *controller.allDictionaries()) names.push_back(entry.name);
  return names;
}

// The entry under exactly this name; one that nobody can mistake for a real one when there is none.
inline DictionaryEntry entryOf(const DictController& controller, const std::string& name) {
  for (const DictionaryEntry& entry : *controller.allDictionaries()) {
    if (entry.name == name) return entry;
  }
  return {.name = "(none)", .check = false, .order = -99};
}

inline Names loadedOf(const DictController& controller) { return controller.selectedDictionary().value_or(Names{}); }

inline std::string contentOf(const DictionaryWorld& world, const std::string& name) {
  return world.folder.read("dictionaries/" + name);
}

}  // namespace tarvo::test
