// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/new_dictionary_sheet.h"

#include <utility>

#include "dict/new_dictionary_request.h"
#include "platform/controls/windows.h"
#include "platform/services/texts.h"

namespace tarvo {

NewDictionarySheet::NewDictionarySheet(Controls controls, NewDictionaryRequest& request,
                                       DictionaryNameChecks::Rules rules, DictionaryNameChecks::Services services,
                                       Windows& windows)
    : controls_(controls),
      request_(request),
      texts_(services.texts),
      windows_(windows),
      checks_(controls.name, request, std::move(rules), services) {}

bool NewDictionarySheet::begin(std::string_view promptKey, Window& host, std::function<void(int returnCode)> ended) {
  controls_.name.setStringValue("");
  const auto show = [&](std::string_view folderName, std::string_view folderTitle) {
    controls_.prompt.setStringValue(texts_.localized(promptKey));
    controls_.folderName.setStringValue(texts_.localized(folderName));
    controls_.folderTitle.setStringValue(texts_.localized(folderTitle));
  };
  if (request_.kind == DictionaryKind::user) show("UDFolderName", "UDFolderNameTitle");
  if (request_.kind == DictionaryKind::memory) show("UserTMAFolderName", "UserTMAFolderNameTitle");
  return windows_.beginSheet(controls_.window, host, std::move(ended));
}

void NewDictionarySheet::newDicOKButtonAction() {
  if (checks_.passAll()) windows_.endSheet(controls_.window, 1);
}

void NewDictionarySheet::newDicCancelButtonAction() { windows_.endSheet(controls_.window, 0); }

}  // namespace tarvo
