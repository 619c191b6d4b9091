// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/style_reading.h"

#include "app/product.h"
#include "platform/services/plist_file.h"
#include "style/style_keys.h"

namespace tarvo {

std::optional<Dictionary> readStyles(Product& product) {
  for (const std::string& path :
       {product.locations().inHome(std::string(gStylePath)), std::string(gAppSupportStylePlist)}) {
    if (Result<Dictionary> styles = readDictionary(product.files(), path)) return std::move(*styles);
  }
  return std::nullopt;
}

std::optional<Dictionary> readStyles(Console& console) {
  std::optional<Dictionary> styles = readStyles(console.product);
  if (!styles) console.err << "there is no style file that can be read\n";
  return styles;
}

const Dictionary* findStyle(Console& console, const Dictionary& styles, int index) {
  const Array* records = styles.array(keyNameStyle);
  const bool exists = records != nullptr && index >= 0 && index < static_cast<int>(records->size());
  const Dictionary* record = exists ? (*records)[static_cast<std::size_t>(index)].dictionary() : nullptr;
  if (record == nullptr) console.err << "there is no style " << index << '\n';
  return record;
}

}  // namespace tarvo
