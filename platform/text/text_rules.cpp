// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/text_rules.h"

#include <unicode/uchar.h>

#include <algorithm>
#include <charconv>
#include <limits>

#include "platform/text/utf8.h"

namespace tarvo {
namespace {

char32_t folded(char32_t codePoint) {
  if (codePoint < 0x80) return codePoint >= 'A' && codePoint <= 'Z' ? codePoint + ('a' - 'A') : codePoint;
  if (codePoint >= invalidByte) return codePoint;
  return static_cast<char32_t>(u_foldCase(static_cast<UChar32>(codePoint), U_FOLD_CASE_DEFAULT));
}

std::u32string folded(std::string_view text) {
  std::u32string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) out.push_back(folded(nextCodePoint(text, i)));
  return out;
}

bool isSpace(char32_t codePoint) {
  return codePoint < invalidByte && u_isUWhiteSpace(static_cast<UChar32>(codePoint)) != 0;
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

std::string_view withoutLeadingSpace(std::string_view text) {
  std::size_t start = 0;
  for (std::size_t i = 0; i < text.size(); start = i) {
    if (!isSpace(nextCodePoint(text, i))) break;
  }
  return text.substr(start);
}

// Takes a sign off the front; whether it was a minus.
bool takeSign(std::string_view& text) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  return negative;
}

std::string_view withoutTrailingSlashes(std::string_view path) {
  while (path.size() > 1 && path.ends_with('/')) path.remove_suffix(1);
  return path;
}

// Where the dot of the extension stands in a name or path, npos for none.
std::size_t extensionDot(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  const std::size_t nameStart = slash == std::string_view::npos ? 0 : slash + 1;
  const std::size_t dot = path.rfind('.');
  const bool counts = dot != std::string_view::npos && dot > nameStart && dot + 1 < path.size();
  return counts ? dot : std::string_view::npos;
}

}  // namespace

bool equalIgnoringCase(std::string_view a, std::string_view b) {
  std::size_t i = 0, j = 0;
  while (i < a.size() && j < b.size()) {
    if (folded(nextCodePoint(a, i)) != folded(nextCodePoint(b, j))) return false;
  }
  return i == a.size() && j == b.size();
}

std::string caseFolded(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) appendCodePoint(out, folded(nextCodePoint(text, i)));
  return out;
}

bool containsIgnoringCase(std::string_view text, std::string_view word) {
  return !word.empty() && folded(text).find(folded(word)) != std::u32string::npos;
}

std::string trimmed(std::string_view text) {
  text = withoutLeadingSpace(text);
  std::size_t end = 0;
  for (std::size_t i = 0; i < text.size();) {
    if (!isSpace(nextCodePoint(text, i))) end = i;
  }
  return std::string(text.substr(0, end));
}

double leadingNumber(std::string_view text) {
  text = withoutLeadingSpace(text);
  const bool negative = takeSign(text);
  // from_chars would take "inf", "nan" and a second minus as well.
  if (text.empty() || !(isDigit(text[0]) || text[0] == '.')) return 0;
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::result_out_of_range) {
    const std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.data()));
    const bool tiny = number[0] == '0' || number[0] == '.' || number.find("e-") != std::string_view::npos ||
                      number.find("E-") != std::string_view::npos;
    value = tiny ? 0 : std::numeric_limits<double>::max();
  }
  return negative ? -value : value;
}

int leadingInteger(std::string_view text) {
  text = withoutLeadingSpace(text);
  const bool negative = takeSign(text);
  const long long limit = negative ? -static_cast<long long>(std::numeric_limits<int>::min())
                                   : static_cast<long long>(std::numeric_limits<int>::max());
  long long value = 0;
  for (const char c : text) {
    if (!isDigit(c)) break;
    value = std::min(value * 10 + (c - '0'), limit);
  }
  return static_cast<int>(negative ? -value : value);
}

std::string lastPathComponent(std::string_view path) {
  path = withoutTrailingSlashes(path);
  if (path == "/") return "/";
  return std::string(path.substr(path.rfind('/') + 1));  // npos + 1 is 0
}

std::string deletingLastPathComponent(std::string_view path) {
  path = withoutTrailingSlashes(path);
  const std::size_t slash = path.rfind('/');
  if (slash == std::string_view::npos) return "";
  return std::string(withoutTrailingSlashes(path.substr(0, slash + 1)));
}

std::string pathExtension(std::string_view name) {
  name = withoutTrailingSlashes(name);
  const std::size_t dot = extensionDot(name);
  return dot == std::string_view::npos ? "" : std::string(name.substr(dot + 1));
}

std::string withPathExtension(std::string name, std::string_view extension) {
  if (extension.empty() || equalIgnoringCase(pathExtension(lastPathComponent(name)), extension)) return name;
  return name.append(".").append(extension);
}

std::string deletingPathExtension(std::string_view name) {
  name = withoutTrailingSlashes(name);
  return std::string(name.substr(0, extensionDot(name)));
}

std::string joinPath(std::string_view base, std::string_view rest) {
  while (rest.starts_with('/')) rest.remove_prefix(1);
  if (rest.empty()) return std::string(base);
  if (base.empty()) return std::string(rest);
  while (base.ends_with('/')) base.remove_suffix(1);
  std::string out;
  out.reserve(base.size() + 1 + rest.size());
  out.append(base).append("/").append(rest);
  return out;
}

bool isAbsolutePath(std::string_view path) { return path.starts_with('/'); }

bool isBelow(std::string_view path, std::string_view folder) {
  folder = withoutTrailingSlashes(folder);
  if (folder == "/") return isAbsolutePath(path);
  return path.starts_with(folder) && (path.size() == folder.size() || path[folder.size()] == '/');
}

}  // namespace tarvo
