// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_findings.h"

#include <functional>
#include <utility>

#include "platform/plist/plist_numbers.h"
#include "platform/plist/plist_writer.h"

namespace tarvo {

namespace {

// The text of a value, or of a key, that is a finding; null for any other.
struct Search {
  std::function<const std::string*(const PropertyList& value)> ofValue;
  std::function<bool(const std::string& key)> isKey;
};

class Walk {
 public:
  explicit Walk(Search search) : search_(std::move(search)) {}

  void through(const Dictionary& dictionary) {
    for (const auto& [key, item] : dictionary.entries()) {
      steps_.push_back({&key, 0});
      if (search_.isKey(key)) found(key);
      look(item);
      steps_.pop_back();
    }
  }

  void through(const Array& array) {
    steps_.push_back({nullptr, 0});
    for (const PropertyList& item : array) {
      look(item);
      ++steps_.back().place;
    }
    steps_.pop_back();
  }

  std::vector<PlistFinding> findings() { return std::move(findings_); }

 private:
  void look(const PropertyList& value) {
    if (const Dictionary* dictionary = value.dictionary()) return through(*dictionary);
    if (const Array* array = value.array()) return through(*array);
    if (const std::string* text = search_.ofValue(value)) found(*text);
  }

  struct Step {
    const std::string* key;  // null: a place in a list
    std::size_t place;
  };

  void found(const std::string& text) {
    std::string keys;
    for (const Step& step : steps_) {
      if (!keys.empty()) keys += '/';
      keys += step.key != nullptr ? *step.key : std::to_string(step.place);
    }
    findings_.push_back({std::move(keys), text});
  }

  Search search_;
  std::vector<Step> steps_;
  std::vector<PlistFinding> findings_;
};

template <class List>
std::vector<PlistFinding> search(const List& list, Search what) {
  Walk walk(std::move(what));
  walk.through(list);
  return walk.findings();
}

template <class List>
std::vector<PlistFinding> unsoundDatesIn(const List& list) {
  const auto unsound = [](const PropertyList& value) {
    const Date* date = std::get_if<Date>(&value.value());
    return date != nullptr && !isSoundDate(date->text) ? &date->text : nullptr;
  };
  return search(list, {unsound, [](const std::string&) { return false; }});
}

}  // namespace

std::vector<PlistFinding> unsoundDates(const Dictionary& list) { return unsoundDatesIn(list); }
std::vector<PlistFinding> unsoundDates(const Array& list) { return unsoundDatesIn(list); }

std::vector<PlistFinding> unkeepableTexts(const Dictionary& list) {
  const auto unkeepable = [](const PropertyList& value) {
    const std::string* text = value.string();
    return text != nullptr && !canHoldText(*text) ? text : nullptr;
  };
  return search(list, {unkeepable, [](const std::string& key) { return !canHoldText(key); }});
}

}  // namespace tarvo
