// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_edits.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"
#include "platform/text/text_rules.h"
#include "style/divider.h"
#include "style/option_table.h"
#include "style/style_file.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

// What a style file has to hold. The other keys, lists of dictionaries among them, are taken as they are.
bool holds(const Dictionary& record, const IndexOption& option) {
  const Dictionary* half = record.dictionary(halfKey(option.direction));
  if (half == nullptr) return false;
  const PropertyList* value = half->find(option.key);
  if (value == nullptr) return option.mayBeAbsent;
  return value->hasIntegerValue() && value->integerValue() >= 0 && value->integerValue() < option.itemCount;
}

}  // namespace

std::string styleName(const Dictionary& record) {
  const std::string* name = record.string(keyNameName);
  return name != nullptr ? *name : std::string();
}

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
    const Dictionary* record = (*styles)[i].dictionary();
    if (equalIgnoringCase(name, record != nullptr ? styleName(*record) : std::string())) return false;
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

Result<Dictionary> readStyle(const FileService& files, const DiskPath& path) {
  Result<Dictionary> record = readDictionary(files, path);
  if (!record) return record;
  const auto options = storedOptions();
  const auto isHeld = [&record](const IndexOption& option) { return holds(*record, option); };
  if (!std::all_of(options.begin(), options.end(), isHeld) || !fitsStyleFile(*record)) {
    return Failure{path.text(), Attempt::read, Reason::noStyle};
  }
  return record;
}

void replaceStyle(StyleStore& store, int index, Dictionary record, const std::string& name) {
  record.set(keyNameName, name);
  record.set(keyNameID, index);
  store.setStyle(index, std::move(record), ChangeKind::import);
}

Result<> writeStyleFile(const StyleStore& store, int index, FileService& files, const DiskPath& path) {
  const std::optional<Dictionary> record = store.getStyleAtIndex(index);
  if (!record) return Failure{path.text(), Attempt::write, Reason::noStyle};
  return files.write(path, writePropertyList(*record));
}

}  // namespace tarvo
