// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/dictionary_reading.h"

#include <algorithm>

#include "app/product.h"
#include "console/verbs/style_reading.h"
#include "platform/text/text_rules.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {

Names storedNames(const Dictionary& record, Direction direction) {
  const Dictionary* half = record.dictionary(halfKey(direction));
  const Array* list = half != nullptr ? half->array(keyNameTD) : nullptr;
  Names names;
  for (const PropertyList& element : list != nullptr ? *list : Array()) {
    if (const std::string* name = element.string()) names.push_back(*name);
  }
  return names;
}

}  // namespace

int positionOf(const Names& names, const std::string& name) {
  const auto found = std::find_if(names.begin(), names.end(),
                                  [&](const std::string& other) { return equalIgnoringCase(other, name); });
  return found != names.end() ? static_cast<int>(found - names.begin()) : -1;
}

DictionaryLists readDictionaryLists(Product& product, const Dictionary& record, Direction direction) {
  DictController lists({product.files(), product.texts(), product.bundle(), product.paths()});
  const ProductPaths& paths = product.paths();
  lists.initializeDictController(DictionaryKind::technical,
                                 direction == Direction::englishToJapanese ? paths.tarvoPathTechnicalDicEngFolderURL()
                                                                           : paths.tarvoPathTechnicalDicJpnFolderURL(),
                                 direction);
  Names names = storedNames(record, direction);
  // Loading a common dictionary that is missing would make it.
  std::erase_if(names, [&lists](const std::string& name) { return !lists.isExitsDic2(name); });
  lists.updateDictionary(std::move(names));
  return {lists.selectedDictionary().value_or(Names{}), lists.notSelectedDictionary()};
}

}  // namespace tarvo
