// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/text/paths.h"
#include "style/dictionary_kind.h"

// The rules for the name of a new user dictionary or translation memory, without its extension.
// Duty: say which rule a name breaks. Not: telling anybody, nor making the file.
namespace tarvo {

class FileService;
class ProductPaths;
class Texts;

enum class NewNameProblem { empty, forbidden, reserved, tooLong, exists };

struct DictionaryNames {
  const FileService& files;
  const Texts& texts;
  const ProductPaths& paths;

  // Whether the user has that dictionary anyway, ignoring case.
  bool isReserved(DictionaryKind kind, Direction direction, const std::string& name) const;
  DiskPath folderOf(DictionaryKind kind) const;  // of the user's own; empty for technical ones
  // The first problem of a name without white space at its ends, in the order of the enumeration.
  std::optional<NewNameProblem> problemWith(DictionaryKind kind, Direction direction, const std::string& name,
                                            std::span<const std::string_view> forbidden) const;
};

// What no name may contain that is made from the style pane, or by a verb.
inline constexpr std::string_view forbiddenInNames[] = {".", ":", "/", "\\"};

bool holdsForbidden(const std::string& name, std::string_view forbidden);
bool isTooLongForTheEngine(const std::string& name);  // its tables have room for 30 bytes in Shift_JIS
std::string fileNameFor(DictionaryKind kind, Direction direction, const std::string& name);

}  // namespace tarvo
