// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/style_menu.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/controls/controls.h"
#include "platform/services/texts.h"
#include "style/style_keys.h"
#include "style/style_records.h"
#include "style/style_store.h"

namespace tarvo {

void fillStyleMenu(PopUpButton& stylePopup, const StyleStore& store, const Texts& texts) {
  const Array* styles = store.root().array(keyNameStyle);
  if (styles == nullptr) return;
  const std::string divider = texts.localized(keyNameSeparator);
  std::vector<PopUpButton::Item> items;
  items.reserve(styles->size());
  for (const PropertyList& style : *styles) {
    PopUpButton::Item item{recordName(style), static_cast<int>(items.size())};
    item.separator = item.title == divider;
    items.push_back(std::move(item));
  }
  stylePopup.setItems(std::move(items));
}

}  // namespace tarvo
