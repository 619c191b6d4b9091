// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "console/verbs/command.h"
#include "platform/plist/property_list.h"

namespace tarvo {

class Product;

// The style file as a start would read it: the user's, else the one that came with the product. Only reads.
std::optional<Dictionary> readStyles(Product& product);
// The same, or nothing where the reason has been told and the verb ends with refused.
std::optional<Dictionary> readStyles(Console& console);
// The record of style N of that file, or nothing where that has been told and the verb ends with usage.
const Dictionary* findStyle(Console& console, const Dictionary& styles, int index);

}  // namespace tarvo
