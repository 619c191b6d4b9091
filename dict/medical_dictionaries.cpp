// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/medical_dictionaries.h"

#include <utility>

#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/texts.h"
#include "platform/services/user_defaults.h"
#include "platform/text/text_rules.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {
namespace {

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

MedicalDictionaries::MedicalDictionaries(const FileService& files, const Locations& locations, const Texts& texts,
                                         UserDefaults& defaults, StyleStore& store)
    : files_(files), locations_(locations), texts_(texts), defaults_(defaults), store_(store) {}

std::vector<std::string_view> MedicalDictionaries::insertInstalled() {
  std::vector<std::string_view> flags;
  // A flag that is there counts, whatever it says: what a user has removed from a list is not put back.
  const auto isDue = [&](std::string_view dataPathKey, std::string_view flag) {
    const DiskPath data = locations_.onDisk(ProductPath(texts_.localized(dataPathKey)));
    return files_.isThere(data) && defaults_.find(flag) == nullptr && !defaults_.isUnknown();
  };
  if (isDue("TechECorwell6", "Corwell1stE")) {
    insertCorwell(Direction::englishToJapanese, "cwl.TRet", "cwla.TRet");
    flags.emplace_back("Corwell1stE");
  }
  if (isDue("TechJCorwell6", "Corwell1stJ")) {
    insertCorwell(Direction::japaneseToEnglish, "cwl", "cwla");  // the files of this direction have no extension
    flags.emplace_back("Corwell1stJ");
  }
  if (isDue("TechETekado", "Tekado1stE")) {
    insertTekado(Direction::englishToJapanese, texts_.localized("NameETekado"));
    flags.emplace_back("Tekado1stE");
  }
  if (isDue("TechJTekado", "Tekado1stJ")) {
    insertTekado(Direction::japaneseToEnglish, texts_.localized("NameJTekado"));
    flags.emplace_back("Tekado1stJ");
  }
  return flags;
}

void MedicalDictionaries::remember(const std::vector<std::string_view>& flags) {
  for (const std::string_view flag : flags) defaults_.set(flag, true);
  defaults_.synchronize();
}

void MedicalDictionaries::insertCorwell(Direction direction, std::string_view techName, std::string_view abbrevName) {
  insert(direction, "Corwell", texts_.localized(techName), texts_.localized(abbrevName));
}

void MedicalDictionaries::insertTekado(Direction direction, std::string_view techName) {
  insert(direction, "Tekado", texts_.localized(techName), std::nullopt);
}

void MedicalDictionaries::insert(Direction direction, std::string_view word, const std::string& name,
                                 const std::optional<std::string>& abbreviation) {
  const Array* present = store_.root().array(keyNameStyle);
  if (present == nullptr) return;  // no styles at all means something else than an empty list of them
  const std::string general = texts_.localized("IgakuSougou"), clinical = texts_.localized("Shinryouka");
  const std::string wordText = texts_.localized(word);
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
  store_.replaceStyles(std::move(styles));
}

}  // namespace tarvo
