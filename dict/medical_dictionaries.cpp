// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/medical_dictionaries.h"

#include <algorithm>
#include <utility>

#include "dict/dictionary_folders.h"
#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "platform/text/text_rules.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {
namespace {

using enum Direction;

// Of each dictionary: its flag in the settings, and the keys of the texts that hold the path of its data and the names
// of its files. Corwell's come in pairs; the text of Tekado's name is a key that is looked up once more.
struct Medical {
  std::string_view flag, dataPathKey;
  Direction direction;
  std::string_view name, abbreviation;
};
constexpr Medical medicals[] = {{"Corwell1stE", "TechECorwell6", englishToJapanese, "cwl.TRet", "cwla.TRet"},
                                {"Corwell1stJ", "TechJCorwell6", japaneseToEnglish, "cwl", "cwla"},  // no extensions
                                {"Tekado1stE", "TechETekado", englishToJapanese, "NameETekado", ""},
                                {"Tekado1stJ", "TechJTekado", japaneseToEnglish, "NameJTekado", ""}};

// What a list of dictionaries says about the medical ones in it.
struct MedicalPlaces {
  bool hasGeneral = false, hasDictionary = false;
  std::ptrdiff_t lastClinical = -1;
};

MedicalPlaces findMedical(const Array& list, const std::string& general, const std::string& clinical,
                          const std::string& word) {
  MedicalPlaces places;
  for (std::size_t i = 0; i < list.size(); ++i) {
    const std::string* name = list[i].string();
    if (name == nullptr) continue;
    if (containsIgnoringCase(*name, general)) {
      places.hasGeneral = true;
    } else if (containsIgnoringCase(*name, clinical)) {
      places.lastClinical = static_cast<std::ptrdiff_t>(i);
    } else if (containsIgnoringCase(*name, word)) {
      places.hasDictionary = true;
    }
  }
  return places;
}

template <typename Kind>
Kind copyOr(const Kind* value) {
  return value != nullptr ? *value : Kind{};
}

}  // namespace

// A flag that is there counts, whatever it says: what a user has removed from a list is not put back.
bool MedicalDictionaries::isDue(std::string_view dataPathKey, std::string_view flag, Direction direction) const {
  const DiskPath data = with_.locations.onDisk(ProductPath(with_.texts.localized(dataPathKey)));
  if (!with_.files.isThere(data) || with_.defaults.find(flag) != nullptr || with_.defaults.isUnknown()) return false;
  const DiskPath folder = dictionaryFolder(with_.paths, DictionaryKind::technical, direction);
  return namesInDictionaryFolder(with_.files, folder).has_value();
}

std::vector<std::string_view> MedicalDictionaries::insertInstalled() {
  std::vector<std::string_view> flags;
  for (const Medical& one : medicals) {
    if (!isDue(one.dataPathKey, one.flag, one.direction)) continue;
    if (one.abbreviation.empty()) {
      insertTekado(one.direction, with_.texts.localized(one.name));
    } else {
      insertCorwell(one.direction, one.name, one.abbreviation);
    }
    flags.push_back(one.flag);
  }
  return flags;
}

bool MedicalDictionaries::inserts(Direction direction, const std::string& fileName) const {
  const Texts& texts = with_.texts;
  return std::ranges::any_of(medicals, [&](const Medical& one) {
    if (one.direction != direction) return false;
    if (one.abbreviation.empty()) return equalIgnoringCase(fileName, texts.localized(texts.localized(one.name)));
    return equalIgnoringCase(fileName, texts.localized(one.name)) ||
           equalIgnoringCase(fileName, texts.localized(one.abbreviation));
  });
}

void MedicalDictionaries::remember(const std::vector<std::string_view>& flags) {
  for (const std::string_view flag : flags) {
    with_.defaults.setLater(flag, true, [&store = with_.store] { return store.isLoadStored(); });
  }
  with_.defaults.synchronize();
}

void MedicalDictionaries::insertCorwell(Direction direction, std::string_view techName, std::string_view abbrevName) {
  insert(direction, "Corwell", with_.texts.localized(techName), with_.texts.localized(abbrevName));
}

void MedicalDictionaries::insertTekado(Direction direction, std::string_view techName) {
  insert(direction, "Tekado", with_.texts.localized(techName), std::nullopt);
}

void MedicalDictionaries::insert(Direction direction, std::string_view word, const std::string& name,
                                 const std::optional<std::string>& abbreviation) {
  const Array* present = with_.store.root().array(keyNameStyle);
  if (present == nullptr) return;  // no styles at all means something else than an empty list of them
  const std::string general = with_.texts.localized("IgakuSougou"), clinical = with_.texts.localized("Shinryouka");
  const std::string wordText = with_.texts.localized(word);
  Array styles = *present;
  for (PropertyList& style : styles) {
    Dictionary* record = style.dictionary();
    if (record == nullptr) continue;
    Dictionary half = copyOr(record->dictionary(halfKey(direction)));
    Array list = copyOr(half.array(keyNameTD));
    const MedicalPlaces places = findMedical(list, general, clinical, wordText);
    if (places.hasGeneral && !places.hasDictionary) {
      list.insert(list.begin() + places.lastClinical + 1, name);
      if (abbreviation) list.emplace_back(*abbreviation);
    }
    half.set(keyNameTD, std::move(list));
    record->set(halfKey(direction), std::move(half));
  }
  with_.store.replaceStyles(std::move(styles));
}

}  // namespace tarvo
