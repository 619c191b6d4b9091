// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/list_edits.h"

#include <utility>

#include "style/divider.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {

Result<> ListEdits::add(ListPlace place, DictController& list, const Names& names) const {
  if (Result<> read = list.couldRead(); !read) return read;
  if (!names.empty()) list.loadDictionary(names);
  return storeLoaded(place, list);
}

Result<> ListEdits::remove(ListPlace place, DictController& list, const Names& names) const {
  if (Result<> read = list.couldRead(); !read) return read;
  for (const std::string& name : names) list.unloadDictionary(name);
  return storeLoaded(place, list);
}

Result<> ListEdits::exchange(ListPlace place, DictController& list, int position, int other) const {
  if (Result<> read = list.couldRead(); !read) return read;
  list.exchangeDictionary(position, other);
  return storeLoaded(place, list);
}

Result<> ListEdits::arrange(ListPlace place, DictController& list, const Names& order) const {
  if (Result<> read = list.couldRead(); !read) return read;
  list.updateDictionary(order);
  return storeLoaded(place, list);
}

// Marking may have scanned anew, since a common dictionary that is missing is made: the folder is asked about again.
Result<> ListEdits::storeLoaded(ListPlace place, const DictController& list) const {
  if (Result<> read = list.couldRead(); !read) return read;
  store(place, list.selectedDictionary());
  return {};
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
