// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/common_module.h"

#include "platform/services/classic_path.h"
#include "platform/services/product_paths.h"

namespace tarvo {

TarvoCommonModule::TarvoCommonModule(const ProductPaths& paths) : paths_(paths) {}

std::string TarvoCommonModule::unixPathToClassic(const ProductPath& path) const {
  return classicPath(path.text(), paths_.volumeName());
}

ProductPath TarvoCommonModule::preferencesWordhavenCache() const { return paths_.preferencesWordhavenCache(); }

}  // namespace tarvo
