// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/named_lists.h"

#include <algorithm>
#include <utility>

#include "dict/dictionary_folders.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "platform/text/text_rules.h"
#include "style/style_keys.h"
#include "style/style_store.h"

namespace tarvo {
namespace {

using Kind = ListProblem::Kind;

DiskPath folderOf(const DictController::Services& services, Direction direction) {
  return dictionaryFolder(services.paths, DictionaryKind::technical, direction);
}

std::optional<std::size_t> positionIn(const Names& names, const std::string& name) {
  const auto found = std::ranges::find_if(names, [&](const auto& other) { return equalIgnoringCase(other, name); });
  return found != names.end() ? std::optional(static_cast<std::size_t>(found - names.begin())) : std::nullopt;
}

bool isIn(const Names& names, const std::string& name) { return positionIn(names, name).has_value(); }

DictController scanned(const DictController::Services& services, Direction direction) {
  DictController list(services);
  list.initializeDictController(DictionaryKind::technical, folderOf(services, direction), direction);
  return list;
}

// Shows these names, as far as they have a file: loading a common dictionary that is missing would make it.
ListContents contentsOf(DictController& list, const Names& stored) {
  Names present = stored;
  std::erase_if(present, [&list](const std::string& name) { return !list.isExitsDic2(name); });
  list.updateDictionary(std::move(present));
  ListContents contents{list.selectedDictionary().value_or(Names{}), list.notSelectedDictionary(), stored,
                        list.unread()};
  std::erase_if(contents.missing, [&contents](const std::string& name) { return isIn(contents.loaded, name); });
  return contents;
}

ListProblem problemOf(const Failure& why) { return {.kind = Kind::unread, .name = why.path, .why = why}; }

// What the list lost with an edit that was made, or why it was not made.
std::expected<Names, ListProblem> answerOf(const Result<>& edit, const Names& lost) {
  if (!edit) return std::unexpected(problemOf(edit.error()));
  return lost;
}

}  // namespace

Names storedNames(const Dictionary& record, Direction direction) {
  const Dictionary* half = record.dictionary(halfKey(direction));
  const Array* list = half != nullptr ? half->array(keyNameTD) : nullptr;
  Names names;
  for (const PropertyList& element : list != nullptr ? *list : Array()) {
    if (const std::string* name = element.string()) names.push_back(*name);
  }
  return names;
}

ListContents readList(const DictController::Services& services, const Dictionary& record, Direction direction) {
  DictController list = scanned(services, direction);
  return contentsOf(list, storedNames(record, direction));
}

Names namesThatCannotBeKept(const DictController::Services& services, Direction direction) {
  Names names = services.files.list(folderOf(services, direction)).value_or(Names{});
  std::erase_if(names, [](const std::string& name) { return canHoldText(name); });
  return names;
}

NamedLists::NamedLists(StyleStore& store, const DictController::Services& services)
    : store_(store), services_(services), edits_(store, services.texts) {}

std::expected<NamedLists::Opened, ListProblem> NamedLists::open(ListPlace place) const {
  const std::optional<Dictionary> record = store_.getStyleAtIndex(place.style);
  if (!record || record->dictionary(halfKey(place.direction)) == nullptr) {
    return std::unexpected(ListProblem{Kind::noHalf, std::string(halfKey(place.direction))});
  }
  DictController list = scanned(services_, place.direction);
  const std::optional<Failure>& unread = list.unread();
  if (unread) return std::unexpected(problemOf(*unread));
  ListContents contents = contentsOf(list, storedNames(*record, place.direction));
  return Opened{std::move(list), std::move(contents)};
}

std::expected<Names, ListProblem> NamedLists::add(ListPlace place, const Names& names) {
  std::expected<Opened, ListProblem> opened = open(place);
  if (!opened) return std::unexpected(opened.error());
  const ListContents& contents = opened->contents;
  for (const std::string& name : names) {
    if (isIn(contents.loaded, name) || isIn(contents.available, name)) continue;
    const Names unkeepable = namesThatCannotBeKept(services_, place.direction);
    const bool isThere = std::ranges::find(unkeepable, name) != unkeepable.end();
    return std::unexpected(ListProblem{isThere ? Kind::unkeepable : Kind::unknown, name});
  }
  Names added = contents.available;
  // The folder may hold a second file under the name of a loaded one, letter case aside.
  std::erase_if(added, [&](const std::string& name) { return !isIn(names, name) || isIn(contents.loaded, name); });
  if (added.empty()) return Names{};
  if (opened->list.checkMaxOver(added)) return std::unexpected(ListProblem{Kind::tooMany, ""});
  return answerOf(edits_.add(place, opened->list, added), contents.missing);
}

std::expected<Names, ListProblem> NamedLists::remove(ListPlace place, const Names& names) {
  std::expected<Opened, ListProblem> opened = open(place);
  if (!opened) return std::unexpected(opened.error());
  ListContents& contents = opened->contents;
  Names removed;
  for (const std::string& name : names) {
    if (isIn(contents.loaded, name) || isIn(contents.missing, name)) {
      removed.push_back(name);
    } else if (!isIn(contents.available, name)) {
      return std::unexpected(ListProblem{Kind::unknown, name});
    }
  }
  if (removed.empty()) return Names{};
  std::erase_if(contents.missing, [&removed](const std::string& name) { return isIn(removed, name); });
  if (contents.loaded.empty()) {
    edits_.store(place, contents.missing.empty() ? std::nullopt : std::optional(contents.missing));
    return Names{};
  }
  return answerOf(edits_.remove(place, opened->list, removed), contents.missing);
}

std::expected<Names, ListProblem> NamedLists::move(ListPlace place, const std::string& name, int position) {
  std::expected<Opened, ListProblem> opened = open(place);
  if (!opened) return std::unexpected(opened.error());
  const ListContents& contents = opened->contents;
  const std::optional<std::size_t> from = positionIn(contents.loaded, name);
  if (!from)
    return std::unexpected(ListProblem{isIn(contents.available, name) ? Kind::notLoaded : Kind::unknown, name});
  if (position < 1 || std::cmp_greater(position, contents.loaded.size())) {
    return std::unexpected(ListProblem{Kind::noPosition, std::to_string(position)});
  }
  const auto to = static_cast<std::size_t>(position - 1);
  if (to == *from) return Names{};
  Names order = contents.loaded;
  order.erase(order.begin() + static_cast<std::ptrdiff_t>(*from));
  order.insert(order.begin() + static_cast<std::ptrdiff_t>(to), contents.loaded[*from]);
  return answerOf(edits_.arrange(place, opened->list, order), contents.missing);
}

}  // namespace tarvo
