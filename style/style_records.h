// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/plist/property_list.h"

// Looks at the root of a style file and at its records, whatever stands there.
namespace tarvo {

// The records of the root, as long as it lives; none where "Style" is absent or no array.
const Array& stylesIn(const Dictionary& root);

// The name of a record; "" for one without, and for what is no record.
std::string styleName(const Dictionary& record);
std::string recordName(const PropertyList& record);

// Whether two keys hold the same; null: there is none.
bool sameValue(const PropertyList* one, const PropertyList* other);

}  // namespace tarvo
