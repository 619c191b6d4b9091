// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text/paths.h"

namespace tarvo {

// Tells the translation engine where the product's styles and dictionaries lie. Called once at start-up, in this order.
class StyleModule {
 public:
  virtual ~StyleModule() = default;
  virtual void tarvoStyleInitialize() = 0;
  virtual void tarvoStyleSetTStyleUrl(const DiskPath& stylePath) = 0;
  virtual void tarvoStyleSetTechDictUrl(const DiskPath& englishFolder, const DiskPath& japaneseFolder) = 0;
  virtual void tarvoStyleSetUserDictUrl(const DiskPath& folder) = 0;
};

}  // namespace tarvo
