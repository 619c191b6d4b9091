// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/option_editing.h"

#include <vector>

#include "style/option_table.h"
#include "style/style_edits.h"
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

void OptionEditing::optionPopupChange(int senderTag) {
  std::vector<OptionValue> values;
  if (const IndexOption* option = indexOptionForTag(senderTag)) {
    const auto position = static_cast<std::size_t>(option - indexOptions().data());
    values.push_back({option->direction, option->key, outlets_.indexPopups[position].indexOfSelectedItem()});
  }
  setOptions(store_, texts_, store_.selectedStyle(), values);
}

void OptionEditing::selectJeOptionPopup(Control& sender) {
  for (std::size_t i = 0; i < outlets_.detailPopups.size(); ++i) {
    if (&outlets_.detailPopups[i] != &sender) continue;
    const DetailOption& option = detailOptions()[i];
    const std::string_view value = option.valueForTag(outlets_.detailPopups[i].selectedTag());
    return setOptions(store_, texts_, store_.selectedStyle(), {{Direction::japaneseToEnglish, option.key, value}});
  }
}

void OptionEditing::selectEjEditPopup() { showPage(outlets_.ejEditPopup, outlets_.ejEditTab); }

void OptionEditing::selectJeEditPopup() { showPage(outlets_.jeEditPopup, outlets_.jeEditTab); }

}  // namespace tarvo
