// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/option_editing.h"

#include <optional>
#include <utility>

#include "style/divider.h"
#include "style/option_table.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

void showPage(const PopUpButton& edit, TabView& pages) {
  pages.selectPageWithIdentifier(edit.selectedTag() == 0 ? "Dict" : "Option");
}

}  // namespace

OptionOutlets::OptionOutlets() : Outlets("style") {
  for (const IndexOption& option : indexOptions()) indexPopups.emplace_back(*this, option.outlet);
  for (const DetailOption& option : detailOptions()) detailPopups.emplace_back(*this, option.outlet);
}

void OptionEditing::showOptions(const Dictionary& record) {
  for (std::size_t i = 0; i < indexOptions().size(); ++i) {
    const IndexOption& option = indexOptions()[i];
    const Dictionary* half = record.dictionary(halfKey(option.direction));
    outlets_.indexPopups[i].selectItemAtIndex(half != nullptr ? half->integerValue(option.key) : 0);
  }
}

void OptionEditing::showDetailedOptions(const Dictionary& record) {
  const Dictionary* je = record.dictionary(keyNameJE);
  for (std::size_t i = 0; i < detailOptions().size(); ++i) {
    const DetailOption& option = detailOptions()[i];
    const std::string* value = je != nullptr ? je->string(option.key) : nullptr;
    outlets_.detailPopups[i].selectItemAtIndex(value != nullptr ? option.tagForValue(*value) : -1);
  }
}

void OptionEditing::setValue(Direction direction, std::string_view key, PropertyList value) {
  const int index = store_.selectedStyle();
  std::optional<Dictionary> record = store_.getStyleAtIndex(index);
  if (!record) return;
  // A record without that half gets none, and the divider no options; it is written back as it is.
  Dictionary* half = record->dictionary(halfKey(direction));
  if (half != nullptr && !isDivider(*record, texts_)) half->set(key, std::move(value));
  store_.setStyle(index, std::move(*record));
}

void OptionEditing::optionPopupChange(int senderTag) {
  const IndexOption* option = indexOptionForTag(senderTag);
  if (option == nullptr) {
    const int index = store_.selectedStyle();
    if (std::optional<Dictionary> record = store_.getStyleAtIndex(index)) store_.setStyle(index, std::move(*record));
    return;
  }
  const auto position = static_cast<std::size_t>(option - indexOptions().data());
  setValue(option->direction, option->key, outlets_.indexPopups[position].indexOfSelectedItem());
}

void OptionEditing::selectJeOptionPopup(Control& sender) {
  for (std::size_t i = 0; i < outlets_.detailPopups.size(); ++i) {
    if (&outlets_.detailPopups[i] != &sender) continue;
    const DetailOption& option = detailOptions()[i];
    setValue(Direction::japaneseToEnglish, option.key, option.valueForTag(outlets_.detailPopups[i].selectedTag()));
    return;
  }
}

void OptionEditing::selectEjEditPopup() { showPage(outlets_.ejEditPopup, outlets_.ejEditTab); }

void OptionEditing::selectJeEditPopup() { showPage(outlets_.jeEditPopup, outlets_.jeEditTab); }

}  // namespace tarvo
