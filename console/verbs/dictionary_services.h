// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "app/product.h"
#include "dict/dict_controller.h"

namespace tarvo {

// What a list of dictionaries needs of the product, which outlives the list.
inline DictController::Services dictionaryServices(Product& product) {
  return {product.files(), product.texts(), product.bundle(), product.paths(), product.locations()};
}

}  // namespace tarvo
