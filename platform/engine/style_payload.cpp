// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/style_payload.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "platform/engine/content_hash.h"
#include "platform/plist/plist_findings.h"
#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"

namespace tarvo {
namespace {

constexpr std::string_view styleKey = "Style";
constexpr std::string_view beforeHash = "<dict>\n\t<key>Hash</key>\n\t<string>";
constexpr std::string_view beforeRevision = "</string>\n\t<key>Revision</key>\n\t<integer>";
constexpr std::string_view behindRevision = "</integer>\n\t<key>Style</key>\n";
constexpr std::size_t stampDigits = 20;

bool isHash(std::string_view text) {
  return text.size() == contentHashSize && text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

// Digits only; nothing for 0 and for what is no revision.
std::optional<std::uint64_t> revisionOf(std::string_view digits) {
  std::uint64_t revision = 0;
  const char* end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, revision);
  const bool isRevision = error == std::errc() && stop == end && revision != 0 && revision <= lastRevision;
  return isRevision ? std::optional(revision) : std::nullopt;
}

// Cuts the expected text off the front.
bool take(std::string_view& bytes, std::string_view expected) {
  if (!bytes.starts_with(expected)) return false;
  bytes.remove_prefix(expected.size());
  return true;
}

std::string_view takeSome(std::string_view& bytes, std::size_t size) {
  const std::string_view taken = bytes.substr(0, size);
  bytes.remove_prefix(taken.size());
  return taken;
}

// Cuts the whole front off.
std::optional<SetStamp> takeFront(std::string_view& bytes) {
  if (!take(bytes, plistHead) || !take(bytes, beforeHash)) return std::nullopt;
  const std::string_view hash = takeSome(bytes, contentHashSize);
  if (!isHash(hash) || !take(bytes, beforeRevision)) return std::nullopt;
  const auto revision = revisionOf(takeSome(bytes, std::min(bytes.find('<'), stampDigits)));
  if (!revision || !take(bytes, behindRevision)) return std::nullopt;
  return SetStamp{*revision, std::string(hash)};
}

bool areDictionaries(const Array& styles) {
  return std::all_of(styles.begin(), styles.end(), [](const auto& style) { return style.dictionary() != nullptr; });
}

}  // namespace

std::string SetStamp::text() const {
  std::string digits = std::to_string(revision);
  digits.insert(0, stampDigits - digits.size(), '0');
  return digits + ' ' + hash;
}

SetStamp SetStamp::parse(std::string_view text) {
  if (text.size() != stampDigits + 1 + contentHashSize || text[stampDigits] != ' ') return {};
  const auto revision = revisionOf(text.substr(0, stampDigits));
  const std::string_view hash = text.substr(stampDigits + 1);
  return revision && isHash(hash) ? SetStamp{*revision, std::string(hash)} : SetStamp{};
}

bool SetStamp::isNewerThan(const SetStamp& other) const {
  return revision != other.revision ? revision > other.revision : hash != other.hash;
}

StylePayload::StylePayload(const StyleSet& styles) {
  appendEncodedArray(rest_, styles.encoded, 1);
  rest_ += "</dict>\n";
  rest_ += plistFoot;
  hash_ = contentHash(rest_);
}

std::string StylePayload::bytes(std::uint64_t revision) const {
  std::string bytes;
  bytes.reserve(payloadFrontSize + rest_.size());
  bytes.append(plistHead).append(beforeHash).append(hash_).append(beforeRevision);
  bytes.append(std::to_string(revision)).append(behindRevision).append(rest_);
  return bytes;
}

std::optional<SetStamp> readPayloadFront(std::string_view bytes) { return takeFront(bytes); }

std::optional<ReadPayload> readPayload(std::string_view bytes) {
  std::string_view rest = bytes;
  auto stamp = takeFront(rest);
  if (!stamp || contentHash(rest) != stamp->hash) return std::nullopt;
  auto list = readPropertyList(bytes);
  Array* styles = list && list->dictionary() != nullptr ? list->dictionary()->array(styleKey) : nullptr;
  if (styles == nullptr || !areDictionaries(*styles) || !unsoundDates(*styles).empty()) return std::nullopt;
  return ReadPayload{std::move(*stamp), std::move(*styles)};
}

}  // namespace tarvo
