// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/command_line/usage_error.h"

#include <algorithm>
#include <numeric>

#include "platform/services/texts.h"
#include "platform/text/printable.h"

namespace tarvo {

namespace {

const char* keyOf(UsageError::Kind kind) {
  switch (kind) {
    case UsageError::Kind::unknownOption: return "Usage.UnknownOption";
    case UsageError::Kind::unknownVerb: return "Usage.UnknownVerb";
    case UsageError::Kind::unexpected: return "Usage.Unexpected";
    case UsageError::Kind::wrongValue: return "Usage.WrongValue";
    case UsageError::Kind::ambiguous: return "Usage.Ambiguous";
    case UsageError::Kind::missing: return "Usage.Missing";
    case UsageError::Kind::missingValue: return "Usage.MissingValue";
  }
  return "";
}

// Whether the wrong word may be meant for one that is allowed.
bool resemblesOne(UsageError::Kind kind) {
  return kind != UsageError::Kind::ambiguous && kind != UsageError::Kind::missing &&
         kind != UsageError::Kind::missingValue;
}

// How many characters have to be put in, left out or exchanged (Levenshtein); none for a beginning.
std::size_t distance(std::string_view a, std::string_view b) {
  if (!a.empty() && b.starts_with(a)) return 0;
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), 0U);
  for (const char c : a) {
    std::size_t diagonal = row[0]++;
    for (std::size_t j = 1; j < row.size(); ++j) {
      const std::size_t exchanged = diagonal + (b[j - 1] == c ? 0 : 1);
      diagonal = row[j];
      row[j] = std::min({exchanged, row[j - 1] + 1, row[j] + 1});
    }
  }
  return row.back();
}

std::string listed(const std::vector<std::string>& words) {
  std::string list;
  for (const std::string& word : words) list += (list.empty() ? "" : ", ") + word;
  return list;
}

}  // namespace

std::string nearestWord(std::string_view word, const std::vector<std::string>& allowed) {
  const auto nearest = std::ranges::min_element(allowed, {}, [&](const auto& other) { return distance(word, other); });
  if (nearest == allowed.end() || distance(word, *nearest) >= std::max(word.size(), nearest->size())) return {};
  return *nearest;
}

std::string subjectOf(const UsageError& error) {
  return error.owner.empty() ? error.word : error.owner + " " + error.word;
}

MessageParts reasonOf(const UsageError& error, const Texts& texts) {
  MessageParts reason{texts.localized(keyOf(error.kind)), "", ""};
  const std::string allowed = error.allowed.empty() ? texts.localized(error.otherwise) : listed(error.allowed);
  if (!allowed.empty()) reason.cause = texts.localized("Usage.Allowed") + ": " + allowed;
  const std::string nearest = resemblesOne(error.kind) ? nearestWord(error.word, error.allowed) : "";
  if (!nearest.empty()) reason.cure = texts.localized("Usage.Nearest") + ": " + nearest;
  return reason;
}

std::string told(const UsageError& error, std::string_view program, const Texts& texts) {
  return printable(std::string(program) + ": " + subjectOf(error) + ": " + joined(reasonOf(error, texts)));
}

}  // namespace tarvo
