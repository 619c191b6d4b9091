// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_store.h"

#include <new>
#include <ranges>
#include <utility>

#include "platform/plist/plist_writer.h"
#include "style/option_table.h"
#include "style/style_pairing.h"
#include "style/style_records.h"

namespace tarvo {

StyleStore::StyleStore(FileService& files, Engine& engine, UserDefaults& defaults, DiskPath path, DiskPath seedPath,
                       EarlierStyles* earlier)
    : file_(files, std::move(path), earlier), seed_(files, std::move(seedPath)), registration_(engine, defaults) {}

Result<> StyleStore::readFrom(StyleFile& file) {
  Result<Dictionary> root = file.read();
  if (!root) return root.error();
  tarvoStyle_ = std::move(*root);
  unwritten_.clear();
  file_.allChanged();
  return {};
}

Result<> StyleStore::readUserStyles() {
  Result<> done = readFrom(file_);
  unread_.reset();
  if (!done && !isAbsence(done.error())) unread_ = done.error();
  return done;
}

Result<> StyleStore::readSeedStyles() {
  Result<> done = readFrom(seed_);
  if (done && !unread_) registration_.didSeedStyles(stylesIn(tarvoStyle_));
  return done;
}

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
  // What the load has joined to the former record, and no file holds yet, went with it.
  if (isNew && pending_ && !isOfAnEdit(kind)) ofLoad_ = false;
  if (isNew) tellChange(std::move(change));
  file_.recordChanged(static_cast<std::size_t>(index));
  writeTarvoStylePlist();
}

bool StyleStore::hasRoomFor(int index, const Dictionary& record) {
  constexpr int depthOfRecords = 2;
  constexpr std::size_t aroundRecords = std::size_t{64} << 10;
  std::string encoded;
  appendValue(encoded, record, depthOfRecords);
  std::size_t size = aroundRecords + encoded.size();
  const std::span<const std::string> present = file_.encode(tarvoStyle_);
  for (std::size_t i = 0; i < present.size(); ++i) size += std::cmp_equal(i, index) ? 0 : present[i].size();
  return size <= largestListFile;
}

void StyleStore::replaceStyles(Array styles, ChangeKind kind) {
  noteChange(kind);
  unwritten_.push_back({.what = StoredChange::What::root, .kind = kind, .before = tarvoStyle_, .after = {}});
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

void StyleStore::tellChange(StoredChange change) {
  unwritten_.push_back(std::move(change));
  if (didChange) didChange(StoredChange(unwritten_.back()));
}

void StyleStore::replaceSelection(Dictionary selection) {
  const Dictionary* present = getSelection();
  StoredChange change{.what = StoredChange::What::selection, .before = present != nullptr ? *present : Dictionary()};
  change.after = selection;
  tarvoStyle_.set(keyNameSelection, std::move(selection));
  tellChange(std::move(change));
  writeTarvoStylePlist();
}

Dictionary StyleStore::lastStored() const {
  Dictionary root = tarvoStyle_;
  for (const StoredChange& change : std::views::reverse(unwritten_)) {
    Array* styles = root.array(keyNameStyle);
    switch (change.what) {
      case StoredChange::What::root: root = change.before; break;
      case StoredChange::What::selection: root.set(keyNameSelection, change.before); break;
      case StoredChange::What::record:
        if (styles != nullptr) (*styles)[static_cast<std::size_t>(change.index)] = change.before;
    }
  }
  return root;
}

void StyleStore::replaceRoot(Dictionary root, ChangeKind kind) {
  const bool isNew = root != tarvoStyle_;
  if (!isNew && !writesAll()) return;
  if (isNew) ofLoad_ = false;
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

Result<> StyleStore::writeRoot() {
  try {
    return file_.write(tarvoStyle_, changed_);
  } catch (const std::bad_alloc&) {
    return Failure{path().text(), Attempt::write, std::make_error_code(std::errc::not_enough_memory)};
  }
}

void StyleStore::writeTarvoStylePlist() {
  const Result<> written = writeRoot();
  const Replaced& replaced = file_.replaced();
  if (replaced.wasForeign) noteForeign(replaced);
  if (written || replaced.unsynced) unwritten_.clear();  // what stands there, on the disk or not yet
  if (written) {
    changed_.reset();
    hasWritten_ = true;
    if (ofLoad_) loadStored_ = true;
    registration_.didStoreStyles();
  }
  unsaved_ = written ? std::nullopt : std::optional(written.error());
  pending_ = pending_ && unsaved_;
  if (didWrite) didWrite();
  if (!awakening_) registerStyles();
}

void StyleStore::noteForeign(const Replaced& replaced) {
  const int number = foreign_ ? foreign_->number + 1 : 1;
  foreign_ = {.number = number, .kept = replaced.kept, .beside = replaced.beside, .base = lastStored()};
}

void StyleStore::registerStyles() {
  const std::optional<StyleSet> styles = styleSet();
  registration_.registerStyles(styles ? &*styles : nullptr);
  if (didRegister) didRegister();
}

Result<StyleStore::Reconciled> StyleStore::reconcile() {
  const std::optional<StyleSet> styles = styleSet();
  Result<std::optional<Array>> newer = registration_.reconcile(styles ? &*styles : nullptr);
  if (!newer) return newer.error();
  std::optional<Array>& taken = *newer;
  if (!taken) return Reconciled::kept;
  ofLoad_ = false;
  endStandIn();
  replaceStyles(std::move(*taken), ChangeKind::pull);
  moveSelection(tarvoStyle_, registration_.placesOfTaken());
  return Reconciled::replaced;
}

std::optional<StyleSet> StyleStore::styleSet() {
  const Array* styles = tarvoStyle_.array(keyNameStyle);
  if (styles == nullptr) return std::nullopt;
  return StyleSet{*styles, file_.encode(tarvoStyle_)};
}

}  // namespace tarvo
