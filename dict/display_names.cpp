// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/display_names.h"

#include <algorithm>
#include <string_view>
#include <utility>

#include "platform/services/texts.h"
#include "platform/text/text_rules.h"

namespace tarvo {

namespace {
constexpr std::pair<std::string_view, std::string_view> medicalNames[] = {{"cwl.TRet", "NameECorwell6"},
                                                                          {"cwla.TRet", "NameECorwellAbbrev"},
                                                                          {"cwl", "NameJCorwell6"},
                                                                          {"cwla", "NameJCorwellAbbrev"}};
}  // namespace

bool isMedicalDictionary(const std::string& fileName) {
  return std::ranges::any_of(medicalNames, [&fileName](const auto& row) { return row.first == fileName; });
}

std::string pickerDisplayName(const std::string& name, const Texts& texts) {
  for (const auto& [medical, key] : medicalNames) {
    if (name == medical) return texts.localized(key);
  }
  return name;
}

std::string dictionaryDisplayName(const std::string& name, const Texts& texts) {
  return pickerDisplayName(deletingPathExtension(name), texts);
}

std::string directionName(Direction direction, const Texts& texts) {
  return texts.localized(direction == Direction::englishToJapanese ? "EJTab" : "JETab");
}

}  // namespace tarvo
