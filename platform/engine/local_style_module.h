// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/style_module.h"

namespace tarvo {

// The engine's side of the places on this machine: remembers what it was told, for who asks.
class LocalStyleModule : public StyleModule {
 public:
  void tarvoStyleInitialize() override;
  void tarvoStyleSetTStyleUrl(const DiskPath& stylePath) override;
  void tarvoStyleSetTechDictUrl(const DiskPath& englishFolder, const DiskPath& japaneseFolder) override;
  void tarvoStyleSetUserDictUrl(const DiskPath& folder) override;

  bool isInitialized() const { return initialized_; }
  const DiskPath& stylePath() const { return stylePath_; }
  const DiskPath& technicalEnglishFolder() const { return technicalEnglishFolder_; }
  const DiskPath& technicalJapaneseFolder() const { return technicalJapaneseFolder_; }
  const DiskPath& userDictionaryFolder() const { return userDictionaryFolder_; }

 private:
  bool initialized_ = false;
  DiskPath stylePath_, technicalEnglishFolder_, technicalJapaneseFolder_, userDictionaryFolder_;
};

}  // namespace tarvo
