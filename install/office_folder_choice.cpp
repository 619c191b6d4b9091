// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/office_folder_choice.h"

#include <optional>

#include "install/addin_table.h"
#include "install/office_folder_search.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"

namespace tarvo {

void OfficeFolderChoice::SelectOfficeFolder() {
  const std::optional<DiskPath> folder =
      panels_.runOpenPanel({.title = texts_.localized("SelectOfficeFolder"), .types = {}, .foldersOnly = true});
  if (!folder) return;
  const Result<> searched = search_.searchFolder(*folder);
  if (searched) table_.reloadTables();  // one that cannot be listed ends it silently
}

}  // namespace tarvo
