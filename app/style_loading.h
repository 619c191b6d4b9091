// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/services/result.h"

namespace tarvo {

class FileService;
class MedicalDictionaries;
class ProductPaths;
class StyleStore;

// What a load of the styles found. Where something is to be written, the store knows it (StyleStore::isPending).
struct LoadedStyles {
  std::optional<Failure> failure;          // why there are no styles, neither the user's nor the product's
  std::vector<std::string_view> inserted;  // flags of the medical dictionaries that joined, to be remembered
  std::vector<std::string> filledIn;       // options that the user's file lacked
  bool isFileAbsent = false;               // the user's: at a first start, or it was taken away since
};

// Reads the styles as a start and every verb that changes styles do: the user's file, else the product's; medical
// dictionaries that were installed since join their lists, missing options get their defaults. Writes no style file;
// the folder for it is made where the product's styles have to be taken. A user's file that is there and cannot be read
// counts as missing; the store keeps why (StyleStore::unread).
LoadedStyles loadStyles(StyleStore& store, MedicalDictionaries& medical, FileService& files, const ProductPaths& paths);

}  // namespace tarvo
