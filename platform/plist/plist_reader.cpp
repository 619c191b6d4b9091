// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_reader.h"

#include <utility>

#include "platform/plist/plist_binary.h"
#include "platform/plist/plist_sniff.h"
#include "platform/plist/plist_xml.h"
#include "platform/text/text_encoding.h"

namespace tarvo {
namespace {

// Converted here, so that neither an unpaired surrogate nor a declaration that contradicts the mark reaches the parser.
std::expected<PropertyList, PlistDamage> readConverted(const std::optional<std::string>& text) {
  if (!text) return std::unexpected(PlistDamage{});
  return readXmlPropertyList(*text, XmlEncoding::utf8);
}

std::expected<PropertyList, PlistDamage> readBinary(std::string_view bytes) {
  std::optional<PropertyList> list = readBinaryPropertyList(bytes);
  if (!list) return std::unexpected(PlistDamage{});
  return std::move(*list);
}

}  // namespace

std::expected<PropertyList, PlistDamage> parsePropertyList(std::string_view bytes) {
  constexpr std::size_t utf8MarkSize = 3;
  if (bytes.size() > plistMaximumBytes) return std::unexpected(PlistDamage{});
  switch (plistForm(bytes)) {
    case PlistForm::binary: return readBinary(bytes);
    case PlistForm::markedUtf8: return readXmlPropertyList(bytes.substr(utf8MarkSize), XmlEncoding::utf8);
    case PlistForm::markedUtf16: return readConverted(utf8FromUtf16(bytes));
    case PlistForm::markedUtf32: return readConverted(utf8FromUtf32(bytes));
    case PlistForm::declared: return readXmlPropertyList(bytes, XmlEncoding::declared);
  }
  return std::unexpected(PlistDamage{});
}

std::optional<PropertyList> readPropertyList(std::string_view bytes) {
  std::expected<PropertyList, PlistDamage> list = parsePropertyList(bytes);
  return list ? std::optional(std::move(*list)) : std::nullopt;
}

}  // namespace tarvo
