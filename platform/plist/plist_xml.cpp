// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_xml.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <new>
#include <utility>

#include "platform/plist/plist_numbers.h"
#include "platform/plist/plist_reader.h"
#include "platform/text/base64.h"

namespace tarvo {
namespace {

enum class Element { plist, array, dict, key, string, integer, real, date, data, yes, no, unknown };

Element elementFromName(std::string_view name) {
  constexpr std::array<std::string_view, 11> names{"plist", "array", "dict", "key",  "string", "integer",
                                                   "real",  "date",  "data", "true", "false"};
  return static_cast<Element>(std::find(names.begin(), names.end(), name) - names.begin());
}

std::string_view withoutSpaceAround(std::string_view text) {
  constexpr std::string_view space = " \t\n\r";
  const std::size_t first = text.find_first_not_of(space);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(space) - first + 1);
}

// Dates are kept as they stand; only what cannot be one is refused.
bool looksLikeDate(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789-+:.TZ") == std::string_view::npos;
}

template <class T>
std::optional<PropertyList> listOf(std::optional<T> value) {
  return value ? std::optional<PropertyList>(std::move(*value)) : std::nullopt;
}

std::optional<PropertyList> valueFromText(Element element, std::string& text) {
  if (element == Element::string) return PropertyList(std::move(text));
  if (element == Element::data) return listOf(bytesFromBase64(text));
  const std::string_view inner = withoutSpaceAround(text);
  switch (element) {
    case Element::integer: return listOf(integerFromText(inner));
    case Element::real:
      if (realFromText(inner)) return PropertyList(Real{std::string(inner)});
      break;
    case Element::date:
      if (looksLikeDate(inner)) return PropertyList(Date{std::string(inner)});
      break;
    case Element::yes:
    case Element::no:
      if (inner.empty()) return PropertyList(element == Element::yes);
      break;
    default: break;
  }
  return std::nullopt;
}

// Builds the value from the parser's events. Every member that takes one answers whether the list can still be good.
class Builder {
 public:
  bool begin(Element element) {
    if (isInsideText_ || element == Element::unknown) return false;
    if (element == Element::plist) return beginPlist();
    if (element == Element::key) return beginKey();
    if (!mayTakeValue() || !countValue()) return false;
    if (element == Element::array || element == Element::dict) {
      containers_.emplace_back().isDictionary = element == Element::dict;
    } else {
      isInsideText_ = true;
    }
    return true;
  }

  bool end(Element element) {
    const bool wasText = std::exchange(isInsideText_, false);
    if (element == Element::plist) return true;
    if (element == Element::key) return endKey();
    if (!wasText) return endContainer();
    std::optional<PropertyList> value = valueFromText(element, text_);
    text_.clear();
    if (value) take(std::move(*value));
    return value.has_value();
  }

  bool text(std::string_view text) {
    if (!isInsideText_) return withoutSpaceAround(text).empty();
    text_ += text;
    return true;
  }

  std::optional<PropertyList> root() { return std::move(root_); }

 private:
  struct Container {
    bool isDictionary = false, hasKey = false;
    std::string key;
    Array items;
    std::vector<Dictionary::Entry> entries;
  };

  bool beginPlist() {
    if (hasPlist_ || root_ || !containers_.empty()) return false;
    return hasPlist_ = true;
  }

  bool beginKey() {
    if (containers_.empty() || !containers_.back().isDictionary || containers_.back().hasKey) return false;
    return isInsideText_ = true;
  }

  bool endKey() {
    containers_.back().key = std::exchange(text_, {});
    return containers_.back().hasKey = true;
  }

  bool mayTakeValue() const {
    if (containers_.empty()) return !root_;
    return !containers_.back().isDictionary || containers_.back().hasKey;
  }

  bool countValue() { return containers_.size() < plistMaximumDepth && ++values_ <= plistMaximumObjects; }

  void take(PropertyList value) {
    if (containers_.empty()) {
      root_ = std::move(value);
    } else if (Container& container = containers_.back(); container.isDictionary) {
      container.entries.emplace_back(std::move(container.key), std::move(value));
      container.hasKey = false;
    } else {
      container.items.push_back(std::move(value));
    }
  }

  bool endContainer() {
    Container ended = std::move(containers_.back());
    containers_.pop_back();
    if (ended.hasKey) return false;  // a key without its value
    if (ended.isDictionary) {
      take(Dictionary::fromEntries(std::move(ended.entries)));
    } else {
      take(std::move(ended.items));
    }
    return true;
  }

  std::vector<Container> containers_;  // those that are open, the innermost last
  std::optional<PropertyList> root_;
  std::string text_;  // of the element that is open
  std::size_t values_ = 0;
  bool isInsideText_ = false, hasPlist_ = false;
};

struct Parser {
  std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> handle;
  Builder builder;
  PlistDamage damage;  // of what the builder did not take
  bool isStopped = false, isOutOfMemory = false;

  PlistDamage place() const {
    return {XML_GetCurrentLineNumber(handle.get()), XML_GetCurrentColumnNumber(handle.get()) + 1};
  }
  void stop() {
    damage = place();
    isStopped = true;
    XML_StopParser(handle.get(), XML_FALSE);
  }
};

Parser& parserOf(void* data) { return *static_cast<Parser*>(data); }

// The parser may still tell of an event or two after it was stopped. Nothing may be thrown through it.
template <class Event, class Content>
void pass(void* data, Event event, Content content) {
  Parser& parser = parserOf(data);
  try {
    if (!parser.isStopped && !(parser.builder.*event)(content)) parser.stop();
  } catch (const std::bad_alloc&) {
    parser.isOutOfMemory = true;
    parser.stop();
  }
}

void XMLCALL onBegin(void* data, const XML_Char* name, const XML_Char**) {
  pass(data, &Builder::begin, elementFromName(name));
}

void XMLCALL onEnd(void* data, const XML_Char* name) { pass(data, &Builder::end, elementFromName(name)); }

void XMLCALL onText(void* data, const XML_Char* text, int length) {
  pass(data, &Builder::text, std::string_view(text, static_cast<std::size_t>(length)));
}

void XMLCALL onEntityDeclaration(void* data, const XML_Char*, int, const XML_Char*, int, const XML_Char*,
                                 const XML_Char*, const XML_Char*, const XML_Char*) {
  parserOf(data).stop();
}

// An entity that only the document type, which is never fetched, could declare: its text would silently be missing.
void XMLCALL onSkippedEntity(void* data, const XML_Char*, int) { parserOf(data).stop(); }

}  // namespace

std::expected<PropertyList, PlistDamage> readXmlPropertyList(std::string_view text, XmlEncoding encoding) {
  Parser parser{{XML_ParserCreate(encoding == XmlEncoding::utf8 ? "UTF-8" : nullptr), &XML_ParserFree}, {}, {}};
  XML_Parser handle = parser.handle.get();
  if (!handle) throw std::bad_alloc();
  if (text.size() > std::size_t{std::numeric_limits<int>::max()}) return std::unexpected(PlistDamage{});
  XML_SetUserData(handle, &parser);
  XML_SetElementHandler(handle, onBegin, onEnd);
  XML_SetCharacterDataHandler(handle, onText);
  XML_SetEntityDeclHandler(handle, onEntityDeclaration);
  XML_SetSkippedEntityHandler(handle, onSkippedEntity);
  const bool isWhole = XML_Parse(handle, text.data(), static_cast<int>(text.size()), XML_TRUE) == XML_STATUS_OK;
  if (parser.isOutOfMemory || XML_GetErrorCode(handle) == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
  std::optional<PropertyList> root = isWhole ? parser.builder.root() : std::nullopt;
  if (root) return std::move(*root);
  const PlistDamage damage = parser.isStopped ? parser.damage : parser.place();
  const bool isNoListAtAll = damage == PlistDamage{1, 1};
  return std::unexpected(isNoListAtAll ? PlistDamage{} : damage);
}

}  // namespace tarvo
