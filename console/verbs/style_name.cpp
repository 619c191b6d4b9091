// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/style_name.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <optional>
#include <vector>

#include "platform/text/text_rules.h"
#include "style/divider.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Whether a word means a number and is none that an index can be: "+1", "0x1", " 1", "-1", "1.5".
bool isOddNumber(const std::string& word) {
  std::string number = trimmed(word);
  if (!number.empty() && (number.front() == '+' || number.front() == '-')) number.erase(0, 1);
  if (number.empty() || !isDigit(number.front())) return false;
  if (number.starts_with("0x") || number.starts_with("0X")) {
    return number.find_first_not_of("0123456789abcdefABCDEF", 2) == std::string::npos;
  }
  double value = 0;
  const char* end = number.data() + number.size();
  return std::from_chars(number.data(), end, value).ptr == end;
}

std::optional<int> indexIn(const std::string& word) {
  if (word.empty() || !std::all_of(word.begin(), word.end(), isDigit)) return std::nullopt;
  int index = 0;
  const auto read = std::from_chars(word.data(), word.data() + word.size(), index);
  return read.ec == std::errc() ? index : std::numeric_limits<int>::max();  // too large a number is no style's either
}

// The indexes of the styles whose names match.
template <class Matches>
std::vector<int> stylesThat(const Array& records, const Texts& texts, Matches matches) {
  std::vector<int> found;
  for (std::size_t i = 0; i < records.size(); ++i) {
    const Dictionary* record = records[i].dictionary();
    if (record != nullptr && !isDivider(*record, texts) && matches(styleName(*record))) {
      found.push_back(static_cast<int>(i));
    }
  }
  return found;
}

std::vector<int> stylesCalled(const Array& records, const Texts& texts, const std::string& word) {
  constexpr std::string_view prefix = "name:";
  const bool isWhole = word.starts_with(prefix);
  const std::string name = isWhole ? word.substr(prefix.size()) : word;
  std::vector<int> found = stylesThat(records, texts, [&name](const std::string& other) { return other == name; });
  if (!found.empty() || isWhole) return found;
  return stylesThat(records, texts, [&name](const std::string& other) { return other.starts_with(name); });
}

Problem refusal(const std::string& word, const char* key, std::string detail = "") {
  return Refusal{word, key, std::move(detail)};
}

}  // namespace

std::optional<UsageError> wrongStyleWord(const std::string& word) {
  if (!word.empty() && (indexIn(word) || !isOddNumber(word))) return std::nullopt;
  return UsageError{UsageError::Kind::wrongValue, word, {}, "Usage.Style", "N"};
}

std::expected<int, Problem> styleNamed(const Dictionary& root, const Texts& texts, const std::string& word,
                                       bool mayBeDivider) {
  const Array& records = stylesIn(root);
  const std::optional<int> index = indexIn(word);
  if (const std::optional<UsageError> error = wrongStyleWord(word)) return std::unexpected(*error);
  if (!index) {
    const std::vector<int> found = stylesCalled(records, texts, word);
    if (found.size() == 1) return found.front();
    if (found.empty()) return std::unexpected(refusal(word, "Refusal.NoStyle"));
    return std::unexpected(refusal(word, "Refusal.SeveralStyles", std::to_string(found.size())));
  }
  const bool isThere = static_cast<std::size_t>(*index) < records.size();
  const Dictionary* record = isThere ? records[static_cast<std::size_t>(*index)].dictionary() : nullptr;
  if (record == nullptr) return std::unexpected(refusal(word, "Refusal.NoStyle"));
  if (!mayBeDivider && isDivider(*record, texts)) return std::unexpected(refusal(word, "Refusal.Divider"));
  return *index;
}

}  // namespace tarvo
