// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/dict_controller.h"

#include <algorithm>

#include "dict/dictionary_creation.h"
#include "dict/dictionary_reorder.h"
#include "dict/dictionary_scan.h"
#include "platform/services/file_service.h"
#include "platform/services/product_paths.h"
#include "platform/services/texts.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

// Text keys of the dictionaries that every user has.
constexpr std::string_view commonNameKeys[] = {"EJCommonUD", "JECommonUD", "EJCommonUTMA", "JECommonUTMA"};

int limitOf(DictionaryKind kind) {
  if (kind == DictionaryKind::technical) return TDMax;
  return kind == DictionaryKind::memory ? UTMAMax : UDMax;
}

}  // namespace

bool DictController::initializeDictController(DictionaryKind kind, DiskPath dicPath, Direction direction) {
  kind_ = kind;
  dicFolderPath_ = std::move(dicPath);
  direction_ = direction;
  handedIn_.clear();
  return initializeDictionary();
}

bool DictController::initializeDictionary() {
  const DictionaryScan scan{services_.files, services_.texts, services_.locations, dicFolderPath_, kind_, direction_};
  DictionaryScan::Found found = scan.find();
  unread_ = std::move(found.unread);
  entries_.emplace();
  positions_.clear();
  for (std::string& name : found.names) {
    positions_.try_emplace(caseFolded(name), entries_->size());
    entries_->push_back({.name = std::move(name)});
  }
  return !entries_->empty();
}

std::optional<std::size_t> DictController::entryNamed(const std::string& name) const {
  const auto found = positions_.find(caseFolded(name));
  return found == positions_.end() ? std::nullopt : std::optional(found->second);
}

void DictController::updateDictionary(Names names) {
  if (!entries_) return;
  clearInformation();
  handedIn_ = names;
  for (std::size_t i = 0; i < names.size(); ++i) {
    // Without an entry there is nothing to mark, and only a common dictionary's file may have to be made.
    if (!entryNamed(names[i]) && !isCommonName(names[i])) continue;
    if (!isExitsDic(names[i])) continue;
    // Looked up anew: making a common dictionary has rescanned.
    if (const std::optional<std::size_t> entry = entryNamed(names[i])) {
      (*entries_)[*entry].check = true;
      (*entries_)[*entry].order = static_cast<int>(i);
    }
  }
}

std::optional<Names> DictController::selectedDictionary() const {
  if (!entries_) return std::nullopt;
  std::vector<const DictionaryEntry*> loaded;
  for (const DictionaryEntry& entry : *entries_) {
    if (entry.check) loaded.push_back(&entry);
  }
  if (loaded.empty()) return std::nullopt;
  std::stable_sort(loaded.begin(), loaded.end(), [](const auto* a, const auto* b) { return a->order < b->order; });
  Names names;
  for (const DictionaryEntry* entry : loaded) names.push_back(entry->name);
  return names;
}

Names DictController::loadedNames() const { return selectedDictionary().value_or(Names{}); }

Names DictController::notSelectedDictionary() const {
  Names names;
  if (!entries_) return names;
  for (const DictionaryEntry& entry : *entries_) {
    if (!entry.check) names.push_back(entry.name);
  }
  return names;
}

Names DictController::getAllDictionary() const {
  Names names;
  if (!entries_) return names;
  for (const DictionaryEntry& entry : *entries_) names.push_back(entry.name);
  if (kind_ == DictionaryKind::memory) {
    const std::string titles[] = {services_.paths.tarvoPathMemoryEtoJTitle(),
                                  services_.paths.tarvoPathMemoryJtoETitle()};
    std::erase_if(names, [&](const std::string& name) {
      return equalIgnoringCase(name, titles[0]) || equalIgnoringCase(name, titles[1]);
    });
  }
  return names;
}

void DictController::loadDictionary(const Names& names) {
  Names all = loadedNames();
  all.insert(all.end(), names.begin(), names.end());
  updateDictionary(std::move(all));
}

void DictController::unloadDictionary(const std::string& name) {
  Names names = loadedNames();
  const auto found = std::find_if(names.begin(), names.end(),
                                  [&](const std::string& other) { return equalIgnoringCase(other, name); });
  if (found != names.end()) names.erase(found);
  updateDictionary(std::move(names));
}

void DictController::exchangeDictionary(int position, int downDicNum) {
  if (std::optional<Names> names = exchanged(loadedNames(), position, downDicNum)) updateDictionary(std::move(*names));
}

void DictController::updateAllDictionary() {
  Names names = namesToKeep();
  initializeDictionary();
  updateDictionary(std::move(names));
}

void DictController::clearInformation() {
  handedIn_.clear();
  if (!entries_) return;
  for (DictionaryEntry& entry : *entries_) {
    entry.check = false;
    entry.order = -1;
  }
}

bool DictController::checkMaxOver(const std::optional<Names>& names) const {
  return names && loadedNames().size() + names->size() > static_cast<std::size_t>(limitOf(kind_));
}

DiskPath DictController::getDicPath(const std::optional<std::string>& name) const {
  if (!name) return {};
  if (kind_ == DictionaryKind::memory) {
    const ProductPaths& paths = services_.paths;
    const bool isEnglish = direction_ == Direction::englishToJapanese;
    const std::string title = isEnglish ? paths.tarvoPathMemoryEtoJTitle() : paths.tarvoPathMemoryJtoETitle();
    if (equalIgnoringCase(*name, title)) {
      return isEnglish ? paths.tarvoPathMemoryEtoJURL() : paths.tarvoPathMemoryJtoEURL();
    }
  }
  return dicFolderPath_ / *name;
}

bool DictController::isCommonName(const std::string& name) const {
  return std::any_of(std::begin(commonNameKeys), std::end(commonNameKeys),
                     [&](std::string_view key) { return equalIgnoringCase(name, services_.texts.localized(key)); });
}

bool DictController::isBeingCreated(const std::string& name) const {
  return std::any_of(beingCreated_.begin(), beingCreated_.end(),
                     [&](const std::string& other) { return equalIgnoringCase(other, name); });
}

bool DictController::isExitsDic2(const std::string& name) const {
  // A folder that could be scanned and cannot be listed now still has the file of the entry, whatever its letter case.
  const std::optional<std::size_t> entry = entryNamed(name);
  if (entry && entries_ && !services_.files.isAbsent(getDicPath((*entries_)[*entry].name))) return true;
  return existsIgnoringCase(services_.files, getDicPath(name));
}

bool DictController::isExitsDic(const std::string& name) {
  if (isExitsDic2(name)) return true;
  if (!isCommonName(name) || isBeingCreated(name)) return false;
  bool isLoaded = false;
  return createDictionary(name, isLoaded).has_value();  // why not is told where one is asked for by name
}

Result<> DictController::createDictionary(const std::string& name, bool& isLoaded) {
  if (dicFolderPath_.empty()) return Failure{name, Attempt::create, Reason::noPath};  // a list that was never set up
  const DiskPath path = getDicPath(name);
  // What cannot be looked at is not written over; the look says why it cannot.
  if (const Result<FileService::Kind> there = services_.files.kind(path); !there) return there.error();
  if (isExitsDic2(name)) return Failure{path.text(), Attempt::create, std::make_error_code(std::errc::file_exists)};
  Result<> made = makeDictionaryFile(services_.files, services_.bundle, path, kind_, direction_);
  if (!made) return made;
  // Loading the new name asks for it again; when there was no template, that must not create it once more.
  beingCreated_.push_back(name);
  isLoaded = addCreatedDictionary(name);
  beingCreated_.pop_back();
  return {};
}

bool DictController::addCreatedDictionary(const std::string& name) {
  Names names = namesToKeep();
  const bool hasRoom = !checkMaxOver(Names{name});
  if (hasRoom) names.push_back(name);
  initializeDictionary();
  updateDictionary(std::move(names));
  return hasRoom;
}

}  // namespace tarvo
