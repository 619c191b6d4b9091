// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/local_style_module.h"

namespace tarvo {

void LocalStyleModule::tarvoStyleInitialize() { initialized_ = true; }

void LocalStyleModule::tarvoStyleSetTStyleUrl(const std::string& stylePath) { stylePath_ = stylePath; }

void LocalStyleModule::tarvoStyleSetTechDictUrl(const std::string& englishFolder, const std::string& japaneseFolder) {
  technicalEnglishFolder_ = englishFolder;
  technicalJapaneseFolder_ = japaneseFolder;
}

void LocalStyleModule::tarvoStyleSetUserDictUrl(const std::string& folder) { userDictionaryFolder_ = folder; }

}  // namespace tarvo
