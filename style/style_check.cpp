// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_check.h"

#include <new>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/plist/json.h"
#include "platform/plist/plist_findings.h"
#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"
#include "platform/services/texts.h"
#include "platform/text/utf8.h"
#include "style/option_table.h"
#include "style/style_file.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {

using Kind = StyleFault::Kind;
using Found = std::optional<StyleFault>;

// Long enough to know the value again.
std::string shortened(const std::string& text) {
  constexpr std::size_t longest = 60;
  std::size_t end = 0;
  while (end < text.size() && end < longest) nextCodePoint(text, end);
  return end == text.size() ? text : text.substr(0, end) + "…";
}

std::string spelled(const PropertyList& value) {
  if (value.array() != nullptr) return "[…]";
  if (value.dictionary() != nullptr) return "{…}";
  if (std::holds_alternative<Data>(value.value())) return "<…>";
  if (const std::string* text = value.string()) return writeJson(shortened(*text));
  return writeJson(jsonFromPropertyList(value));
}

StyleFault faultOf(Kind kind, std::string keys, std::string found = "", int most = -1) {
  StyleFault fault;
  fault.kind = kind;
  fault.keys = std::move(keys);
  fault.found = std::move(found);
  fault.most = most;
  return fault;
}

StyleFault faultOf(const Failure& failure) {
  StyleFault fault;
  fault.failure = failure;
  return fault;
}

Found wrongHalf(const Dictionary& record, std::string_view key) {
  const PropertyList* half = record.find(key);
  if (half == nullptr) return faultOf(Kind::absent, std::string(key));
  if (half->dictionary() != nullptr) return std::nullopt;
  return faultOf(Kind::kind, std::string(key), spelled(*half));
}

Found wrongOption(const Dictionary& record, const IndexOption& option) {
  const std::string_view half = halfKey(option.direction);
  const std::string keys = std::string(half) + '/' + std::string(option.key);
  const int most = option.itemCount - 1;
  const PropertyList* value = record.dictionary(half)->find(option.key);
  if (value == nullptr) return option.mayBeAbsent ? std::nullopt : Found(faultOf(Kind::absent, keys, "", most));
  const bool isNumber = value->hasIntegerValue();
  if (isNumber && value->integerValue() >= 0 && value->integerValue() <= most) return std::nullopt;
  return faultOf(isNumber ? Kind::range : Kind::kind, keys, spelled(*value), most);
}

Found wrongDate(const Dictionary& record) {
  const std::vector<PlistFinding> dates = unsoundDates(record);
  if (dates.empty()) return std::nullopt;
  return faultOf(Kind::date, dates.front().keys, shortened(dates.front().text));
}

Found wrongIn(const Dictionary& record) {
  for (const std::string_view half : {keyNameEJ, keyNameJE}) {
    if (Found fault = wrongHalf(record, half)) return fault;
  }
  for (const IndexOption& option : storedOptions()) {
    if (Found fault = wrongOption(record, option)) return fault;
  }
  if (!fitsStyleFile(record)) return faultOf(Kind::depth, "");
  return wrongDate(record);
}

std::expected<Dictionary, StyleFault> readChecked(const FileService& files, const DiskPath& path) {
  Result<Dictionary> record = readDictionary(files, path);
  if (!record) return std::unexpected(faultOf(record.error()));
  Found fault = wrongIn(*record);
  if (!fault) return std::move(*record);
  fault->failure = {path.text(), Attempt::read, Reason::noStyle};
  return std::unexpected(std::move(*fault));
}

const char* keyOf(const StyleFault& fault) {
  const bool isOption = fault.most >= 0;
  switch (fault.kind) {
    case Kind::absent: return isOption ? "StyleFault.optionAbsent" : "StyleFault.absent";
    case Kind::kind: return isOption ? "StyleFault.range" : "StyleFault.noDictionary";
    case Kind::date: return "StyleFault.date";
    case Kind::depth: return "StyleFault.depth";
    default: return "StyleFault.range";
  }
}

}  // namespace

std::expected<Dictionary, StyleFault> readStyle(const FileService& files, const DiskPath& path) {
  try {
    return readChecked(files, path);
  } catch (const std::bad_alloc&) {
    return std::unexpected(
        faultOf(Failure{path.text(), Attempt::read, std::make_error_code(std::errc::not_enough_memory)}));
  }
}

MessageParts styleFaultParts(const StyleFault& fault, const Texts& texts) {
  MessageParts parts = failureParts(fault.failure, texts);
  if (fault.kind == Kind::file) return parts;
  parts.cause = filledInAll(texts.localized(keyOf(fault)), {fault.keys, fault.found, std::to_string(fault.most)});
  return parts;
}

}  // namespace tarvo
