// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/caller_requests.h"

#include "platform/text/text_encoding.h"

namespace tarvo {

namespace {

constexpr int firstVersionWithUtf16 = 105;
constexpr std::string_view bomData{"\xFF\xFE", 2};

struct Code {
  std::string_view text;
  std::optional<int> tool;
};
constexpr Code codes[] = {{"tMG8", 0}, {"tQB8", 1},        {"tTX8", 2}, {"tGD8", 3},           {"tTM8", 4},
                          {"tNP8", 5}, {"OfficeAddin", 6}, {"MSWD", 6}, {"XCEL", 6},           {"PPT3", 6},
                          {"Mail", 7}, {"emal", 7},        {"OPIM", 7}, {"offi", std::nullopt}};

// Callers send their text without a mark, in little-endian order. A mark of their own gets a second one in front, and
// the text then matches no code: every tool of the product reads requests this way.
std::string withMark(const std::string& bytes) {
  if (bytes.size() < bomData.size()) return bytes;
  const std::string_view start = std::string_view(bytes).substr(0, bomData.size());
  if (start == "\xFF\xFF" || start == "\xFE\xFE") return bytes;
  return std::string(bomData) + bytes;
}

}  // namespace

CallerRequest callerRequestForCode(std::string_view code) {
  for (const Code& known : codes) {
    if (known.text == code) return {known.tool};
  }
  return {0};
}

std::optional<CallerRequest> decodeCallerRequest(const std::optional<std::string>& bytes, int version) {
  if (!bytes) return std::nullopt;
  const std::optional<std::string> code =
      version >= firstVersionWithUtf16 ? utf8FromUtf16(withMark(*bytes)) : utf8FromShiftJis(*bytes);
  if (!code) return std::nullopt;
  return callerRequestForCode(*code);
}

}  // namespace tarvo
