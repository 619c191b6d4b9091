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
  std::optional<Tool> tool;
};
constexpr Code codes[] = {{"tMG8", Tool::manager},
                          {"tQB8", Tool::quickTranslation},
                          {"tTX8", Tool::textTranslation},
                          {"tGD8", Tool::readingGuide},
                          {"tTM8", Tool::translationMemory},
                          {"tNP8", Tool::notepad},
                          {"OfficeAddin", Tool::officeAddins},
                          {"MSWD", Tool::officeAddins},
                          {"XCEL", Tool::officeAddins},
                          {"PPT3", Tool::officeAddins},
                          {"Mail", Tool::mail},
                          {"emal", Tool::mail},
                          {"OPIM", Tool::mail},
                          {"offi", std::nullopt}};

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
  return {Tool::manager};
}

std::optional<CallerRequest> decodeCallerRequest(const std::optional<std::string>& bytes, int version) {
  if (!bytes) return std::nullopt;
  const std::optional<std::string> code =
      version >= firstVersionWithUtf16 ? utf8FromUtf16(withMark(*bytes)) : utf8FromShiftJis(*bytes);
  if (!code) return std::nullopt;
  return callerRequestForCode(*code);
}

}  // namespace tarvo
