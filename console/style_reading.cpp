// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/style_reading.h"

#include "app/product.h"
#include "platform/plist_file.h"
#include "style/style_keys.h"

namespace tarvo {

std::optional<Dictionary> readStyles(Product& product) {
  std::optional<Dictionary> styles =
      PlistFile(product.files(), product.locations().inHome(std::string(gStylePath))).read();
  return styles ? styles : PlistFile(product.files(), std::string(gAppSupportStylePlist)).read();
}

}  // namespace tarvo
