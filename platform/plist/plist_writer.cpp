// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_writer.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/text/base64.h"
#include "platform/text/utf8.h"

namespace tarvo {

const std::string_view plistHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n";
const std::string_view plistFoot = "</plist>\n";

namespace {

constexpr std::string_view replacement = "\xEF\xBF\xBD";  // U+FFFD

void indent(std::string& out, int depth) { out.append(static_cast<std::size_t>(depth), '\t'); }

// Printable ASCII, tab and line feed stand for themselves, but for the three characters of markup.
constexpr std::array<bool, 256> isPlain = [] {
  std::array<bool, 256> table{};
  for (std::size_t c = 0x20; c < 0x80; ++c) table[c] = c != '&' && c != '<' && c != '>';
  table['\t'] = table['\n'] = true;
  return table;
}();

// The bytes of a surrogate, where a text holds one against the rules of UTF-8.
bool isSurrogate(std::string_view text, std::size_t position) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[position + i]); };
  return position + 2 < text.size() && byte(0) == 0xED && byte(1) >= 0xA0 && byte(1) < 0xC0 && (byte(2) & 0xC0) == 0x80;
}

bool isLost(char32_t codePoint) {
  const bool isControl = codePoint < 0x20 && codePoint != '\t' && codePoint != '\n' && codePoint != '\r';
  return isControl || codePoint == 0xFFFE || codePoint == 0xFFFF || codePoint >= invalidByte;
}

// Appends the character at the position, which is not plain, and gives the position behind it.
std::size_t appendSpecial(std::string& out, std::string_view text, std::size_t position) {
  const std::size_t start = position;
  const char32_t codePoint = nextCodePoint(text, position);
  switch (codePoint) {
    case '&': out += "&amp;"; break;
    case '<': out += "&lt;"; break;
    case '>': out += "&gt;"; break;
    case '\r': out += "&#13;"; break;  // a bare one would be read as a line feed
    default:
      if (isLost(codePoint)) {
        out += replacement;
        if (isSurrogate(text, start)) position = start + 3;
      } else {
        out += text.substr(start, position - start);
      }
  }
  return position;
}

void appendText(std::string& out, std::string_view text) {
  for (std::size_t position = 0; position < text.size();) {
    const std::size_t start = position;
    while (position < text.size() && isPlain[static_cast<unsigned char>(text[position])]) ++position;
    out.append(text, start, position - start);
    if (position < text.size()) position = appendSpecial(out, text, position);
  }
}

// The start and end of an element that holds text.
struct Tags {
  std::string_view start, end;
};
constexpr Tags keyTags{"<key>", "</key>\n"}, stringTags{"<string>", "</string>\n"}, realTags{"<real>", "</real>\n"},
    dateTags{"<date>", "</date>\n"};

void appendElement(std::string& out, const Tags& tags, std::string_view text) {
  out += tags.start;
  appendText(out, text);
  out += tags.end;
}

// One overload per kind; the indentation of the first line stands already.
struct Writer {
  std::string& out;
  int depth;

  void operator()(bool value) const { out += value ? "<true/>\n" : "<false/>\n"; }
  void operator()(const Real& value) const { appendElement(out, realTags, value.text); }
  void operator()(const Date& value) const { appendElement(out, dateTags, value.text); }
  void operator()(const std::string& value) const { appendElement(out, stringTags, value); }

  void operator()(const Integer& value) const {
    std::array<char, 24> digits;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value.magnitude).ptr;
    out += value.negative ? "<integer>-" : "<integer>";
    out.append(digits.data(), end).append("</integer>\n");
  }

  void operator()(const Data& value) const {
    constexpr int lineWidth = 76, tabWidth = 8, narrowest = 16;
    const auto group = static_cast<std::size_t>(std::max(lineWidth - tabWidth * depth, narrowest) / 4 * 3);
    out += "<data>\n";
    for (std::span<const std::byte> rest = value; !rest.empty();) {
      const auto line = rest.first(std::min(rest.size(), group));
      indent(out, depth);
      appendBase64(out, line);
      out += '\n';
      rest = rest.subspan(line.size());
    }
    indent(out, depth);
    out += "</data>\n";
  }

  void operator()(const Array& value) const {
    if (value.empty()) return static_cast<void>(out += "<array/>\n");
    out += "<array>\n";
    for (const PropertyList& item : value) appendValue(out, item, depth + 1);
    indent(out, depth);
    out += "</array>\n";
  }

  void operator()(const Dictionary& value) const {
    if (value.empty()) return static_cast<void>(out += "<dict/>\n");
    out += "<dict>\n";
    for (const auto& [key, item] : value.entries()) {
      appendKey(out, key, depth + 1);
      appendValue(out, item, depth + 1);
    }
    indent(out, depth);
    out += "</dict>\n";
  }
};

}  // namespace

void appendValue(std::string& out, const PropertyList& value, int depth) {
  indent(out, depth);
  std::visit(Writer{out, depth}, value.value());
}

void appendKey(std::string& out, std::string_view key, int depth) {
  indent(out, depth);
  appendElement(out, keyTags, key);
}

void appendEncodedArray(std::string& out, std::span<const std::string> encoded, int depth) {
  indent(out, depth);
  if (encoded.empty()) return static_cast<void>(out += "<array/>\n");
  std::size_t size = out.size();
  for (const std::string& item : encoded) size += item.size();
  constexpr std::size_t roomForTheRest = 4096;
  out.reserve(size + roomForTheRest);
  out += "<array>\n";
  for (const std::string& item : encoded) out += item;
  indent(out, depth);
  out += "</array>\n";
}

bool canHoldText(std::string_view text) {
  for (std::size_t position = 0; position < text.size();) {
    if (isLost(nextCodePoint(text, position))) return false;
  }
  return true;
}

std::string writePropertyList(const PropertyList& value) {
  std::string out(plistHead);
  appendValue(out, value, 0);
  out += plistFoot;
  return out;
}

}  // namespace tarvo
