// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/user_lists.h"

#include "platform/services/file_service.h"
#include "platform/services/product_paths.h"

namespace tarvo {

UserLists::UserLists(DictController::Services services)
    : ejUDController(services),
      jeUDController(services),
      ejUTMAController(services),
      jeUTMAController(services),
      services_(services) {}

void UserLists::setUp() {
  const DiskPath dictionaries = services_.paths.tarvoPathUserDicFolderURL();
  const DiskPath memories = services_.paths.tarvoPathUserTmaFolderURL();
  for (const DiskPath& folder : {dictionaries, memories}) {
    if (services_.files.isThere(folder)) continue;
    // The lists of a folder that is not there are empty.
    if (const Result<> made = services_.files.makeFolder(folder); !made && didFail) didFail(made.error());
  }
  ejUDController.initializeDictController(DictionaryKind::user, dictionaries, Direction::englishToJapanese);
  jeUDController.initializeDictController(DictionaryKind::user, dictionaries, Direction::japaneseToEnglish);
  ejUTMAController.initializeDictController(DictionaryKind::memory, memories, Direction::englishToJapanese);
  jeUTMAController.initializeDictController(DictionaryKind::memory, memories, Direction::japaneseToEnglish);
}

}  // namespace tarvo
