// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/services/result.h"

// Texts that belong to one machine: where dictionaries of other makers were installed.
namespace tarvo {

class FileService;
class Locations;
class Texts;

inline constexpr const char* machineTexts = "/Library/Application Support/Wordhaven/TarvoEiwa/Local.strings";

// The text of a key that such a table gives; the key itself where none does. A key without a text is looked up in the
// table once more, which may have been out of reach when the texts were laid. Fails when it is there and cannot be
// read: then nobody knows what was installed.
Result<std::string> machineText(std::string_view key, const Texts& texts, const FileService& files,
                                const Locations& locations);

}  // namespace tarvo
