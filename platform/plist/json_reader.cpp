// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <charconv>

#include "platform/plist/json.h"
#include "platform/text/utf8.h"

namespace tarvo {

namespace {

constexpr int deepest = 512;

// Reads forward; any deviation sets failed and stops everything.
class Reader {
 public:
  explicit Reader(std::string_view text) : text_(text) {}

  std::optional<Json> document() {
    Json value = this->value(0);
    skipBlanks();
    if (failed_ || at_ != text_.size()) return std::nullopt;
    return value;
  }

 private:
  Json fail() {
    failed_ = true;
    return nullptr;
  }
  char peek() const { return at_ < text_.size() ? text_[at_] : '\0'; }
  void skipBlanks() {
    while (at_ < text_.size() && std::string_view(" \t\r\n").find(text_[at_]) != std::string_view::npos) ++at_;
  }
  bool take(std::string_view word) {
    if (!text_.substr(at_).starts_with(word)) return false;
    at_ += word.size();
    return true;
  }
  bool takeAfterBlanks(std::string_view word) {
    skipBlanks();
    return take(word);
  }

  Json value(int depth) {
    skipBlanks();
    if (failed_ || depth > deepest) return fail();
    if (take("null")) return nullptr;
    if (take("true")) return true;
    if (take("false")) return false;
    if (peek() == '"') return text();
    if (peek() == '[') return list(depth);
    if (peek() == '{') return object(depth);
    return number();
  }

  Json list(int depth) {
    ++at_;
    Json::List elements;
    if (takeAfterBlanks("]")) return elements;
    do {
      elements.push_back(value(depth + 1));
    } while (!failed_ && takeAfterBlanks(","));
    return takeAfterBlanks("]") ? Json(std::move(elements)) : fail();
  }

  Json object(int depth) {
    ++at_;
    Json::Object members;
    if (takeAfterBlanks("}")) return members;
    do {
      skipBlanks();
      if (peek() != '"') return fail();
      std::string key = text();
      if (!takeAfterBlanks(":")) return fail();
      members.insert_or_assign(std::move(key), value(depth + 1));
    } while (!failed_ && takeAfterBlanks(","));
    return takeAfterBlanks("}") ? Json(std::move(members)) : fail();
  }

  std::size_t digits() {
    const std::size_t begin = at_;
    while (peek() >= '0' && peek() <= '9') ++at_;
    return at_ - begin;
  }

  Json number() {
    const std::size_t begin = at_;
    const bool negative = take("-");
    const bool leadingZero = peek() == '0';
    const std::size_t whole = digits();
    if (whole == 0 || (leadingZero && whole > 1)) return fail();
    bool real = false;
    if (take(".")) {
      real = true;
      if (digits() == 0) return fail();
    }
    if (take("e") || take("E")) {
      real = true;
      if (!take("-")) take("+");
      if (digits() == 0) return fail();
    }
    const std::string_view written = text_.substr(begin, at_ - begin);
    if (real) return Real{std::string(written)};
    Integer integer{0, negative};
    const std::string_view magnitude = written.substr(negative ? 1 : 0);
    const auto read = std::from_chars(magnitude.data(), magnitude.data() + magnitude.size(), integer.magnitude);
    if (read.ec != std::errc{}) return fail();
    if (integer.magnitude == 0) integer.negative = false;
    return integer;
  }

  char32_t hexadecimal() {
    unsigned unit = 0;
    const char* begin = text_.data() + at_;
    if (text_.size() - at_ < 4 || std::from_chars(begin, begin + 4, unit, 16).ptr != begin + 4) failed_ = true;
    at_ += failed_ ? 0 : 4;
    return unit;
  }

  void escape(std::string& out) {
    constexpr std::string_view names = "\"\\/bfnrt";
    constexpr std::string_view characters = "\"\\/\b\f\n\r\t";
    const std::size_t known = names.find(peek());
    if (at_ < text_.size() && known != std::string_view::npos) {
      ++at_;
      out += characters[known];
      return;
    }
    if (!take("u")) {
      failed_ = true;
      return;
    }
    char32_t unit = hexadecimal();
    if (unit >= 0xD800 && unit < 0xDC00 && take("\\u")) {
      const char32_t low = hexadecimal();
      unit = low >= 0xDC00 && low < 0xE000 ? 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00) : U'\uFFFD';
    }
    appendCodePoint(out, unit >= 0xD800 && unit < 0xE000 ? U'\uFFFD' : unit);
  }

  std::string text() {
    std::string out;
    ++at_;
    while (!failed_ && peek() != '"') {
      if (at_ >= text_.size() || static_cast<unsigned char>(peek()) < 0x20) {
        failed_ = true;
      } else if (take("\\")) {
        escape(out);
      } else {
        out += text_[at_++];
      }
    }
    ++at_;
    return out;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  bool failed_ = false;
};

}  // namespace

std::optional<Json> readJson(std::string_view text) { return Reader(text).document(); }

}  // namespace tarvo
