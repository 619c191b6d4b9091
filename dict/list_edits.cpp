// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/list_edits.h"

#include <utility>

#include "style/divider.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {

bool ListEdits::add(ListPlace place, DictController& list, const Names& names) const {
  if (list.checkMaxOver(names)) return false;
  if (!names.empty()) list.loadDictionary(names);
  store(place, list.selectedDictionary());
  return true;
}

void ListEdits::remove(ListPlace place, DictController& list, const Names& names) const {
  for (const std::string& name : names) list.unloadDictionary(name);
  store(place, list.selectedDictionary());
}

void ListEdits::exchange(ListPlace place, DictController& list, int position, int other) const {
  list.exchangeDictionary(position, other);
  store(place, list.selectedDictionary());
}

void ListEdits::arrange(ListPlace place, DictController& list, const Names& order) const {
  list.updateDictionary(order);
  store(place, list.selectedDictionary());
}

void ListEdits::store(ListPlace place, const std::optional<Names>& names) const {
  std::optional<Dictionary> record = store_.getStyleAtIndex(place.style);
  if (!record) return;
  Dictionary* half = record->dictionary(halfKey(place.direction));
  if (half != nullptr && !isDivider(*record, texts_)) {
    if (names) {
      half->set(keyNameTD, Array(names->begin(), names->end()));
    } else {
      half->remove(keyNameTD);
    }
  }
  store_.setStyle(place.style, std::move(*record));
}

}  // namespace tarvo
