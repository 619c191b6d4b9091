// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/style_module.h"

namespace tarvo {

// The engine's side of the places on this machine: remembers what it was told, for who asks.
class LocalStyleModule : public StyleModule {
 public:
  void tarvoStyleInitialize() override;
  void tarvoStyleSetTStyleUrl(const std::string& stylePath) override;
  void tarvoStyleSetTechDictUrl(const std::string& englishFolder, const std::string& japaneseFolder) override;
  void tarvoStyleSetUserDictUrl(const std::string& folder) override;

  bool isInitialized() const { return initialized_; }
  const std::string& stylePath() const { return stylePath_; }
  const std::string& technicalEnglishFolder() const { return technicalEnglishFolder_; }
  const std::string& technicalJapaneseFolder() const { return technicalJapaneseFolder_; }
  const std::string& userDictionaryFolder() const { return userDictionaryFolder_; }

 private:
  bool initialized_ = false;
  std::string stylePath_, technicalEnglishFolder_, technicalJapaneseFolder_, userDictionaryFolder_;
};

}  // namespace tarvo
