// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>

#include "platform/plist/json.h"
#include "platform/plist/plist_numbers.h"

namespace tarvo {

namespace {

constexpr std::size_t deepest = 512;

// Takes what the library's parser finds, in its order and under the names that it calls. False stops it.
class Builder {
 public:
  Json take() { return std::move(whole_); }

  bool null() { return add(nullptr); }
  bool boolean(bool value) { return add(value); }
  bool number_integer(std::int64_t value) { return add(Integer::of(value)); }
  bool number_unsigned(std::uint64_t value) { return add(Integer{value, false}); }
  // Also an integer of more than 64 bits, which would lose digits.
  bool number_float(double /*value*/, const std::string& text) {
    if (text.find_first_of(".eE") != std::string::npos) return add(Real{text});
    const std::optional<Integer> integer = integerFromText(text);
    return integer && add(*integer);
  }
  bool string(std::string& text) { return add(std::move(text)); }
  bool binary(std::vector<std::uint8_t>& /*bytes*/) { return false; }
  bool start_array(std::size_t /*size*/) { return open(true); }
  bool end_array() { return close(); }
  bool start_object(std::size_t /*size*/) { return open(false); }
  bool key(std::string& name) {
    open_.back().key = std::move(name);
    return true;
  }
  bool end_object() { return close(); }
  bool parse_error(std::size_t /*at*/, const std::string& /*token*/, const std::exception& /*reason*/) { return false; }

 private:
  struct Open {
    bool isList = false;
    Json::List list;
    Json::Object object;
    std::string key;  // of the member that comes next
  };

  bool add(Json value) {
    if (open_.empty()) {
      whole_ = std::move(value);
    } else if (open_.back().isList) {
      open_.back().list.push_back(std::move(value));
    } else {
      open_.back().object.insert_or_assign(open_.back().key, std::move(value));
    }
    return true;
  }
  bool open(bool isList) {
    if (open_.size() == deepest) return false;
    open_.emplace_back().isList = isList;
    return true;
  }
  bool close() {
    Open ended = std::move(open_.back());
    open_.pop_back();
    return ended.isList ? add(std::move(ended.list)) : add(std::move(ended.object));
  }

  std::vector<Open> open_;
  Json whole_;
};

}  // namespace

std::optional<Json> readJson(std::string_view text) {
  Builder builder;
  if (!nlohmann::json::sax_parse(text, &builder)) return std::nullopt;
  return builder.take();
}

}  // namespace tarvo
