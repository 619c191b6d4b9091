// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_reader.h"

#include "platform/plist/plist_binary.h"
#include "platform/plist/plist_sniff.h"
#include "platform/plist/plist_xml.h"
#include "platform/text/text_encoding.h"

namespace tarvo {
namespace {

// Converted here, so that neither an unpaired surrogate nor a declaration that contradicts the mark reaches the parser.
std::optional<PropertyList> readUtf16(std::string_view bytes) {
  const auto text = utf8FromUtf16(bytes);
  return text ? readXmlPropertyList(*text, XmlEncoding::utf8) : std::nullopt;
}

}  // namespace

std::optional<PropertyList> readPropertyList(std::string_view bytes) {
  constexpr std::size_t utf8MarkSize = 3;
  if (bytes.size() > plistMaximumBytes) return std::nullopt;
  switch (plistForm(bytes)) {
    case PlistForm::binary: return readBinaryPropertyList(bytes);
    case PlistForm::markedUtf8: return readXmlPropertyList(bytes.substr(utf8MarkSize), XmlEncoding::utf8);
    case PlistForm::markedUtf16: return readUtf16(bytes);
    case PlistForm::declared: return readXmlPropertyList(bytes, XmlEncoding::declared);
  }
  return std::nullopt;
}

}  // namespace tarvo
