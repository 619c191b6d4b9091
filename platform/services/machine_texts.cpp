// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/machine_texts.h"

#include "platform/services/locations.h"
#include "platform/services/plist_file.h"
#include "platform/services/texts.h"

namespace tarvo {

Result<std::string> machineText(std::string_view key, const Texts& texts, const FileService& files,
                                const Locations& locations) {
  if (const std::string* text = texts.find(key)) return *text;
  const Result<Dictionary> table = readDictionary(files, locations.onDisk(ProductPath(machineTexts)));
  if (!table && !isAbsence(table.error())) return table.error();
  const std::string* text = table ? table->string(key) : nullptr;
  return text != nullptr ? *text : std::string(key);
}

}  // namespace tarvo
