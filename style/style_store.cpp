// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_store.h"

#include <utility>

#include "style/option_table.h"

namespace tarvo {

StyleStore::StyleStore(FileService& files, Engine& engine, UserDefaults& defaults, DiskPath path, DiskPath seedPath,
                       EarlierStyles* earlier)
    : file_(files, std::move(path), earlier), seed_(files, std::move(seedPath)), registration_(engine, defaults) {}

Result<> StyleStore::readFrom(StyleFile& file) {
  Result<Dictionary> root = file.read();
  if (!root) return root.error();
  tarvoStyle_ = std::move(*root);
  file_.allChanged();
  return {};
}

Result<> StyleStore::readUserStyles() {
  Result<> done = readFrom(file_);
  unread_.reset();
  if (!done && !isAbsence(done.error())) unread_ = done.error();
  return done;
}

Result<> StyleStore::readSeedStyles() { return readFrom(seed_); }

void StyleStore::fillInMissingOptions() {
  Array* styles = tarvoStyle_.array(keyNameStyle);
  if (styles == nullptr) return;
  for (PropertyList& style : *styles) {
    Dictionary* record = style.dictionary();
    Dictionary* je = record != nullptr ? record->dictionary(keyNameJE) : nullptr;
    if (je == nullptr) continue;
    for (const auto& [key, value] : jeOptionDefaults()) {
      if (je->contains(key)) continue;
      je->set(key, value);
      noteChange(ChangeKind::repair);
    }
  }
  file_.allChanged();
}

const Array* StyleStore::getAllStyle() const {
  const Array* styles = tarvoStyle_.array(keyNameStyle);
  return styles != nullptr && !styles->empty() ? styles : nullptr;
}

std::optional<Dictionary> StyleStore::getStyleAtIndex(int index) const {
  const Array* styles = getAllStyle();
  if (styles == nullptr || !std::in_range<std::size_t>(index) || static_cast<std::size_t>(index) >= styles->size()) {
    return std::nullopt;
  }
  const Dictionary* record = (*styles)[static_cast<std::size_t>(index)].dictionary();
  return record != nullptr ? std::optional(*record) : std::nullopt;
}

void StyleStore::setStyle(int index, Dictionary record, ChangeKind kind) {
  Array* styles = tarvoStyle_.array(keyNameStyle);
  if (styles == nullptr || !std::in_range<std::size_t>(index) || static_cast<std::size_t>(index) >= styles->size())
    return;
  PropertyList& present = (*styles)[static_cast<std::size_t>(index)];
  if (!writesAll() && present.dictionary() != nullptr && *present.dictionary() == record) return;
  const bool isNew = present.dictionary() == nullptr || *present.dictionary() != record;
  StoredChange change{.kind = kind, .index = index, .before = {}, .after = record};
  if (present.dictionary() != nullptr) change.before = *present.dictionary();
  present = std::move(record);
  noteChange(kind);
  if (isNew) tellChange(change);
  file_.recordChanged(static_cast<std::size_t>(index));
  writeTarvoStylePlist();
}

void StyleStore::replaceStyles(Array styles, ChangeKind kind) {
  noteChange(kind);
  tarvoStyle_.set(keyNameStyle, std::move(styles));
  file_.allChanged();
}

void StyleStore::choose(const std::vector<std::string>& toolIds, int index) {
  bool isChanged = false;
  if (Dictionary* selection = tarvoStyle_.dictionary(keyNameSelection)) {
    const Dictionary before = *selection;
    for (const std::string& id : toolIds) selection->set(id, index);
    isChanged = before != *selection;
    if (isChanged) tellChange({.what = StoredChange::What::selection, .before = before, .after = *selection});
  }
  if (isChanged || writesAll()) writeTarvoStylePlist();
}

void StyleStore::tellChange(const StoredChange& change) const {
  if (didChange) didChange(change);
}

void StyleStore::replaceSelection(Dictionary selection) {
  tarvoStyle_.set(keyNameSelection, std::move(selection));
  writeTarvoStylePlist();
}

void StyleStore::replaceRoot(Dictionary root, ChangeKind kind) {
  const bool isNew = root != tarvoStyle_;
  if (!isNew && !writesAll()) return;
  noteChange(kind);
  const Dictionary before = std::exchange(tarvoStyle_, std::move(root));
  file_.allChanged();
  if (isNew) tellChange({.what = StoredChange::What::root, .kind = kind, .before = before, .after = tarvoStyle_});
  writeTarvoStylePlist();
}

int StyleStore::selectedStyle() const {
  const Dictionary* selection = getSelection();
  return selection != nullptr ? selection->integerValue(currentID_) : 0;
}

void StyleStore::writeTarvoStylePlist() {
  const Result<> written = file_.write(tarvoStyle_, changed_);
  if (written) changed_.reset();
  unsaved_ = written ? std::nullopt : std::optional(written.error());
  pending_ = pending_ && unsaved_;
  if (didWrite) didWrite();
  if (!awakening_) registerStyles();
}

void StyleStore::registerStyles() {
  const std::optional<StyleSet> styles = styleSet();
  registration_.registerStyles(styles ? &*styles : nullptr);
}

Result<StyleStore::Reconciled> StyleStore::reconcile() {
  const std::optional<StyleSet> styles = styleSet();
  Result<std::optional<Array>> newer = registration_.reconcile(styles ? &*styles : nullptr);
  if (!newer) return newer.error();
  std::optional<Array>& taken = *newer;
  if (!taken) return Reconciled::kept;
  replaceStyles(std::move(*taken), ChangeKind::pull);
  return Reconciled::replaced;
}

std::optional<StyleSet> StyleStore::styleSet() {
  const Array* styles = tarvoStyle_.array(keyNameStyle);
  if (styles == nullptr) return std::nullopt;
  return StyleSet{*styles, file_.encode(tarvoStyle_)};
}

}  // namespace tarvo
