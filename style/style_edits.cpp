// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_edits.h"

#include <new>
#include <optional>
#include <utility>

#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "platform/text/text_rules.h"
#include "style/divider.h"
#include "style/style_keys.h"
#include "style/style_records.h"
#include "style/style_store.h"

namespace tarvo {

void setOptions(StyleStore& store, const Texts& texts, int index, const std::vector<OptionValue>& values) {
  std::optional<Dictionary> record = store.getStyleAtIndex(index);
  if (!record) return;
  if (!isDivider(*record, texts)) {
    for (const OptionValue& value : values) {
      if (Dictionary* half = record->dictionary(halfKey(value.direction))) half->set(value.key, value.value);
    }
  }
  store.setStyle(index, std::move(*record));
}

bool isNameFree(const Array* styles, int index, const std::string& name, const std::string& standardName) {
  if (equalIgnoringCase(name, standardName)) return false;
  if (styles == nullptr) return true;
  for (std::size_t i = 0; i < styles->size(); ++i) {
    if (std::cmp_equal(i, index)) continue;
    if (equalIgnoringCase(name, recordName((*styles)[i]))) return false;
  }
  return true;
}

std::expected<void, NameProblem> renameStyle(StyleStore& store, int index, const std::string& name,
                                             const std::string& standardName) {
  const std::string trimmedName = trimmed(name);
  if (trimmedName.empty()) return std::unexpected(NameProblem::empty);
  if (!isNameFree(store.getAllStyle(), index, trimmedName, standardName)) return std::unexpected(NameProblem::taken);
  if (std::optional<Dictionary> record = store.getStyleAtIndex(index)) {
    record->set(keyNameName, trimmedName);
    store.setStyle(index, std::move(*record));
  }
  return {};
}

Result<> replaceStyle(StyleStore& store, int index, Dictionary record, const std::string& name) {
  try {
    record.set(keyNameName, name);
    record.set(keyNameID, index);
    if (!store.hasRoomFor(index, record)) return Failure{store.path().text(), Attempt::write, Reason::overLimit};
    store.setStyle(index, std::move(record), ChangeKind::import);
  } catch (const std::bad_alloc&) {
    return Failure{store.path().text(), Attempt::write, std::make_error_code(std::errc::not_enough_memory)};
  }
  return {};
}

Result<> writeStyleFile(const StyleStore& store, int index, FileService& files, const DiskPath& path) {
  const std::optional<Dictionary> record = store.getStyleAtIndex(index);
  if (!record) return Failure{path.text(), Attempt::write, Reason::noStyle};
  return files.write(path, writePropertyList(*record));
}

}  // namespace tarvo
