// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_records.h"

#include "style/style_keys.h"

namespace tarvo {

const Array& stylesIn(const Dictionary& root) {
  static const Array none;
  const Array* styles = root.array(keyNameStyle);
  return styles != nullptr ? *styles : none;
}

std::string styleName(const Dictionary& record) {
  const std::string* name = record.string(keyNameName);
  return name != nullptr ? *name : std::string();
}

std::string recordName(const PropertyList& record) {
  const Dictionary* values = record.dictionary();
  return values != nullptr ? styleName(*values) : std::string();
}

bool sameValue(const PropertyList* one, const PropertyList* other) {
  return one == nullptr || other == nullptr ? one == other : *one == *other;
}

}  // namespace tarvo
