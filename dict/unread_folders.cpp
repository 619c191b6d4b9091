// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/unread_folders.h"

#include "dict/dict_controller.h"
#include "platform/controls/table_view.h"
#include "platform/services/failure_text.h"
#include "platform/services/texts.h"

namespace tarvo {

void UnreadFolders::scanned(const DictController& list, TableView& table) {
  const std::optional<Failure>& why = list.unread();
  table.setPlaceholder(why ? sentence("DictionariesUnread", *why) : "");
  if (!why) {
    told_.erase(list.dicFolderPath());
    return;
  }
  const auto [told, isNew] = told_.try_emplace(list.dicFolderPath(), *why);
  if (!isNew && told->second == *why) return;
  told->second = *why;
  if (tell) tell(sentence("DictionariesUnread", *why));
}

void UnreadFolders::refused(const Failure& why) const {
  if (tell) tell(sentence("ListNotChanged", why));
}

std::string UnreadFolders::sentence(std::string_view key, const Failure& why) const {
  return filledIn(texts_.localized(key), failureText(why, texts_));
}

}  // namespace tarvo
