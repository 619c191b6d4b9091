// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

#include "platform/property_list.h"

namespace tarvo {

class Product;

// The style file as a start would read it: the user's, else the one that came with the product. Only reads.
std::optional<Dictionary> readStyles(Product& product);

}  // namespace tarvo
