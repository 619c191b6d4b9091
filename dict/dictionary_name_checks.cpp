// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dictionary_name_checks.h"

#include <algorithm>
#include <utility>

#include "dict/new_dictionary_request.h"
#include "platform/controls/controls.h"
#include "platform/services/file_service.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"
#include "platform/text/text_rules.h"

namespace tarvo {
DictionaryNameChecks::DictionaryNameChecks(TextField& nameField, NewDictionaryRequest& request, Rules rules,
                                           Services services)
    : nameField_(nameField), request_(request), rules_(std::move(rules)), services_(services) {}

const std::string& DictionaryNameChecks::name() const { return nameField_.stringValue(); }

void DictionaryNameChecks::alert(const std::string& header, std::string_view messageKey, std::string_view value) {
  const Texts& texts = services_.texts;
  services_.panels.runAlertPanel({.title = header,
                                  .message = value.empty() ? texts.localizedOrEmpty(messageKey)
                                                           : filledIn(texts.localizedOrEmpty(messageKey), value),
                                  .buttons = {texts.localizedOrEmpty("AlertClose")}});
}

bool DictionaryNameChecks::passAll() {
  return checkDicNameEnough() && checkInvalidName() && checkIsCommonDicName() && checkIsOverCountName() &&
         checkExistsNewDic();
}

bool DictionaryNameChecks::checkDicNameEnough() {
  nameField_.setStringValue(trimmed(name()));
  if (!name().empty()) return true;
  // A memory shares the message with a dictionary, under a header of its own; only it beeps.
  if (request_.kind == DictionaryKind::user) {
    alert(services_.texts.localizedOrEmpty("NoUDNameHeader"), "NoUDNameMessage");
  } else if (request_.kind == DictionaryKind::memory) {
    services_.panels.beep();
    alert(services_.texts.localizedOrEmpty("NoUTMNameHeader"), "NoUDNameMessage");
  }
  return false;
}

bool DictionaryNameChecks::compareInvalidName(std::string_view forbidden) const {
  return !holdsForbidden(name(), forbidden);
}

bool DictionaryNameChecks::checkInvalidName() {
  if (std::all_of(rules_.forbidden.begin(), rules_.forbidden.end(),
                  [this](std::string_view text) { return compareInvalidName(text); })) {
    return true;
  }
  if (request_.kind == DictionaryKind::user || request_.kind == DictionaryKind::memory) {
    std::string forbidden;
    for (const std::string_view text : rules_.forbidden) forbidden.append(forbidden.empty() ? "" : " ").append(text);
    services_.panels.beep();
    alert(services_.texts.localizedOrEmpty("invalidNameHeader"),
          request_.kind == DictionaryKind::user ? "invalidNameUDMessage" : "invalidNameUTMAMessage", forbidden);
  }
  return false;
}

bool DictionaryNameChecks::checkIsCommonDicName() {
  if (!request_.kind || !names().isReserved(*request_.kind, request_.direction, name())) return true;
  alert(services_.texts.localizedOrEmpty("invalidNameHeader2"), "invalidNameUDMessage2");
  return false;
}

bool DictionaryNameChecks::checkIsOverCountName() {
  if (!isTooLongForTheEngine(name())) return true;
  const bool isKnown = request_.kind == DictionaryKind::user || request_.kind == DictionaryKind::memory;
  if (!isKnown && !rules_.tellsOverlongNamesOfOddKinds) return false;
  std::string_view message;  // odd kinds have none
  if (isKnown) message = request_.kind == DictionaryKind::user ? "tooLongNameUDMessage" : "tooLongNameUTMAMessage";
  services_.panels.beep();
  alert(services_.texts.localizedOrEmpty("tooLongNameHeader"), message);
  return false;
}

bool DictionaryNameChecks::checkExistsNewDic() {
  request_.fDictName.clear();
  const std::optional<DictionaryKind> kind = request_.kind;
  if (kind != DictionaryKind::user && kind != DictionaryKind::memory) return true;
  request_.fDictName = fileNameFor(*kind, request_.direction, name());
  if (!existsIgnoringCase(services_.files, names().folderOf(*kind) / request_.fDictName)) return true;
  services_.panels.beep();
  alert("\"" + request_.fDictName + "\"" + services_.texts.localizedOrEmpty("existsDicHeader"),
        kind == DictionaryKind::user ? "existsUDMessage" : "existsUTMAMessage");
  return false;
}

}  // namespace tarvo
