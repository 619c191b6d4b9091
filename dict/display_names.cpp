// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/display_names.h"

#include <string_view>
#include <utility>

#include "platform/services/texts.h"
#include "platform/text/text_rules.h"

namespace tarvo {

std::string pickerDisplayName(const std::string& name, const Texts& texts) {
  constexpr std::pair<std::string_view, std::string_view> medicalNames[] = {{"cwl.TRet", "NameECorwell6"},
                                                                            {"cwla.TRet", "NameECorwellAbbrev"},
                                                                            {"cwl", "NameJCorwell6"},
                                                                            {"cwla", "NameJCorwellAbbrev"}};
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
