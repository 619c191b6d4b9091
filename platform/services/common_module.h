// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/text/paths.h"

namespace tarvo {

class ProductPaths;

// Services that the product's tools share. A program has one of its own.
class TarvoCommonModule {
 public:
  explicit TarvoCommonModule(const ProductPaths& paths);
  std::string unixPathToClassic(const ProductPath& path) const;
  ProductPath preferencesWordhavenCache() const;

 private:
  const ProductPaths& paths_;
};

}  // namespace tarvo
