// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_names.h"

#include <algorithm>

#include "platform/services/file_service.h"
#include "platform/services/product_paths.h"
#include "platform/services/texts.h"
#include "platform/text/text_encoding.h"
#include "platform/text/text_rules.h"

namespace tarvo {

bool DictionaryNames::isReserved(DictionaryKind kind, Direction direction, const std::string& name) const {
  const bool isEnglish = direction == Direction::englishToJapanese;
  std::string_view key;
  if (kind == DictionaryKind::user) key = isEnglish ? "EJCommonUD" : "JECommonUD";
  if (kind == DictionaryKind::memory) key = isEnglish ? "EJCommonUTMA" : "JECommonUTMA";
  return !key.empty() && equalIgnoringCase(name, texts.localizedOrEmpty(key));
}

DiskPath DictionaryNames::folderOf(DictionaryKind kind) const {
  if (kind == DictionaryKind::user) return paths.tarvoPathUserDicFolderURL();
  return kind == DictionaryKind::memory ? paths.tarvoPathUserTmaFolderURL() : DiskPath();
}

std::optional<NewNameProblem> DictionaryNames::problemWith(DictionaryKind kind, Direction direction,
                                                           const std::string& name,
                                                           std::span<const std::string_view> forbidden) const {
  if (name.empty()) return NewNameProblem::empty;
  const auto isHeld = [&name](std::string_view text) { return holdsForbidden(name, text); };
  if (std::any_of(forbidden.begin(), forbidden.end(), isHeld)) return NewNameProblem::forbidden;
  if (isReserved(kind, direction, name)) return NewNameProblem::reserved;
  if (isTooLongForTheEngine(name)) return NewNameProblem::tooLong;
  const DiskPath path = folderOf(kind) / fileNameFor(kind, direction, name);
  // What cannot be looked at is no fault of the name: making it says why it cannot be.
  const bool exists = files.kind(path).has_value() && existsIgnoringCase(files, path);
  return exists ? std::optional(NewNameProblem::exists) : std::nullopt;
}

bool holdsForbidden(const std::string& name, std::string_view forbidden) {
  return !forbidden.empty() && name.find(forbidden) != std::string::npos;
}

bool isTooLongForTheEngine(const std::string& name) {
  constexpr std::size_t longest = 30;
  return shiftJisFromUtf8(name).size() > longest;
}

std::string fileNameFor(DictionaryKind kind, Direction direction, const std::string& name) {
  return name + "." + std::string(extensionOf(kind, direction));
}

}  // namespace tarvo
