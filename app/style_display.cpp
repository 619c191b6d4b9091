// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/style_display.h"

#include <optional>
#include <string>
#include <utility>

#include "dict/dictionary_list_editing.h"
#include "style/divider.h"
#include "style/option_editing.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

Names namesOf(const Array& list) {
  Names names;
  for (const PropertyList& name : list) names.push_back(name.string() != nullptr ? *name.string() : std::string());
  return names;
}

Array arrayOf(const Names& names) { return Array(names.begin(), names.end()); }

}  // namespace

void StyleDisplay::showList(int index, Dictionary& record, Direction direction) {
  DictController& controller = lists_.getActiveDictController(direction);
  Dictionary* options = record.dictionary(halfKey(direction));
  const Array* stored = options != nullptr ? options->array(keyNameTD) : nullptr;
  if (stored != nullptr) {
    controller.updateDictionary(namesOf(*stored));
    const std::optional<Names> loaded = controller.selectedDictionary();
    // Nothing loaded at all leaves the stored list alone: the dictionaries' disk may just be away. A folder that could
    // not be read says nothing of what is gone.
    if (loaded && !controller.unread() && loaded->size() < stored->size()) {
      options->set(keyNameTD, arrayOf(*loaded));
      store_.setStyle(index, record, ChangeKind::repair);
    }
  }
  lists_.getActiveTableView(direction).reloadData();
}

void StyleDisplay::setupStyleData2(int index) {
  std::optional<Dictionary> record = store_.getStyleAtIndex(index);
  if (!record) return;
  if (isDivider(*record, texts_)) return;
  options_.showOptions(*record);
  options_.showDetailedOptions(*record);
  for (const Direction direction : bothDirections) showList(index, *record, direction);
}

}  // namespace tarvo
