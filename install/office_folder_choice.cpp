// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/office_folder_choice.h"

#include <optional>

#include "install/addin_table.h"
#include "install/office_folder_search.h"
#include "platform/services/failure_text.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"

namespace tarvo {

void OfficeFolderChoice::SelectOfficeFolder() {
  const std::optional<DiskPath> folder =
      panels_.runOpenPanel({.title = texts_.localized("SelectOfficeFolder"), .types = {}, .foldersOnly = true});
  if (!folder) return;
  const Result<OfficeFolderSearch::Found> found = search_.searchFolder(*folder);
  if (found) table_.reloadTables();
  if (!tell) return;
  if (!found) return tell(failureText(found.error(), texts_));
  for (const Failure& unread : found->unread) tell(failureText(unread, texts_));
  tell(outcomeOf(*folder, found->added));
}

std::string OfficeFolderChoice::outcomeOf(const DiskPath& folder, const std::vector<std::string>& added) const {
  if (added.empty()) return folder.text() + ": " + texts_.localized("Refusal.NothingFound");
  std::string names;
  for (const std::string& name : added) names += (names.empty() ? "" : ", ") + name;
  return filledInAll(texts_.localized("Notice.found"), {std::to_string(added.size()), names});
}

}  // namespace tarvo
