// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/option_words.h"

#include <algorithm>

#include "style/option_table.h"

namespace tarvo {

namespace {

struct Offered {
  Direction direction;
  std::string_view key;
  std::vector<std::string> values;
  bool isIndex;
};

std::vector<Offered> offeredOptions() {
  std::vector<Offered> all;
  for (const IndexOption& option : indexOptions()) {
    Offered& row = all.emplace_back(Offered{option.direction, option.key, {}, true});
    for (int i = 0; i < option.itemCount; ++i) row.values.push_back(std::to_string(i));
  }
  for (const DetailOption& option : detailOptions()) {
    const auto choices = option.choices();
    all.push_back({Direction::japaneseToEnglish, option.key, {choices.begin(), choices.end()}, false});
  }
  return all;
}

UsageError wrongKey(const std::string& key, const std::vector<Offered>& options) {
  UsageError error{UsageError::Kind::wrongValue, key, {}, "", "KEY"};
  for (const Offered& option : options) error.allowed.emplace_back(option.key);
  return error;
}

}  // namespace

std::expected<std::vector<OptionValue>, UsageError> readOptionWords(const std::vector<std::string>& words) {
  const std::vector<Offered> options = offeredOptions();
  std::vector<OptionValue> read;
  for (const std::string& word : words) {
    const std::size_t equals = std::min(word.find('='), word.size());
    const std::string key = word.substr(0, equals), value = word.substr(std::min(equals + 1, word.size()));
    const auto option = std::ranges::find(options, key, &Offered::key);
    if (option == options.end()) return std::unexpected(wrongKey(key, options));
    const auto found = std::ranges::find(option->values, value);
    if (found == option->values.end()) {
      return std::unexpected(UsageError{UsageError::Kind::wrongValue, value, option->values, "", key});
    }
    const PropertyList stored =
        option->isIndex ? PropertyList(static_cast<int>(found - option->values.begin())) : PropertyList(value);
    read.push_back({option->direction, option->key, stored});
  }
  return read;
}

}  // namespace tarvo
