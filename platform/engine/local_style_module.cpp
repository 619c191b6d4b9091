// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/local_style_module.h"

namespace tarvo {

void LocalStyleModule::tarvoStyleInitialize() { initialized_ = true; }

void LocalStyleModule::tarvoStyleSetTStyleUrl(const DiskPath& stylePath) { stylePath_ = stylePath; }

void LocalStyleModule::tarvoStyleSetTechDictUrl(const DiskPath& englishFolder, const DiskPath& japaneseFolder) {
  technicalEnglishFolder_ = englishFolder;
  technicalJapaneseFolder_ = japaneseFolder;
}

void LocalStyleModule::tarvoStyleSetUserDictUrl(const DiskPath& folder) { userDictionaryFolder_ = folder; }

}  // namespace tarvo
