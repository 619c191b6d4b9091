// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/history_commands.h"

#include "app/product.h"
#include "console/verbs/style_reading.h"
#include "console/verbs/style_session.h"
#include "console/verbs/text_table.h"
#include "dict/change_words.h"
#include "platform/plist/json.h"
#include "platform/services/failure_text.h"
#include "platform/services/plist_file.h"
#include "style/style_history.h"
#include "style/style_keys.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

Refusal noSuchSet(const std::string& id) { return {id, "Refusal.NoEarlierStyles", ""}; }

std::vector<std::string> wordsOf(const HistoryEntry& entry, const Texts& texts) {
  if (entry.damage) return {failureCauseText(*entry.damage, texts)};
  if (entry.unread) return {texts.localized("History.presentUnread")};
  return changesInWords(entry.changes, texts);
}

Json::Object jsonOf(const HistoryEntry& entry, const Texts& texts) {
  const std::vector<std::string> words = wordsOf(entry, texts);
  return {{"id", entry.set.id},
          {"time", isoText(entry.set.time)},
          {"kind", std::string(nameOf(entry.set.kind))},
          {"changed", Json::List(words.begin(), words.end())}};
}

// What a start would show; that the user's cannot be read is told.
Result<Array> presentStyles(Console& console) {
  Product& product = console.product;
  Result<Dictionary> root = readUsersStyles(console);
  if (!root && isAbsence(root.error())) {
    noteAbsentStyles(console);
    root = readDictionary(product.files(), product.locations().onDisk(ProductPath(std::string(gAppSupportStylePlist))));
  }
  if (!root) {
    const Failure& failure = root.error();
    note(console, {failure.path, "Refusal.PresentUnread", failureParts(failure, console.textsToTell()).cause});
    return failure;
  }
  return stylesIn(*root);
}

}  // namespace

ExitStatus HistoryCommand::run(Console& console) {
  const EarlierStyles earlier(console.product.files(), console.product.locations().inHome(gEarlierStyles));
  Result<std::vector<EarlierSet>> sets = earlier.list();
  if (!sets) return tell(console, sets.error());
  const std::optional<EarlierSet> only = setWithId(*sets, id_);
  if (!id_.empty() && !only) return tell(console, noSuchSet(id_));
  const Result<Array> present = presentStyles(console);
  const Texts texts = console.textsToTell();
  Json::List list;
  std::vector<std::vector<std::string>> rows;
  StyleHistory history(earlier, std::move(*sets), present);
  for (std::size_t place = 0; place < history.sets().size(); ++place) {
    if (only && history.sets()[place].id != only->id) continue;
    const HistoryEntry& entry = history.entry(place);
    list.emplace_back(jsonOf(entry, texts));
    std::vector<std::string> row{entry.set.id, std::string(nameOf(entry.set.kind))};
    for (const std::string& words : wordsOf(entry, texts)) {
      row.push_back(words);
      rows.push_back(std::exchange(row, {"", ""}));
    }
    if (!row.front().empty()) rows.push_back(row);
  }
  if (console.json) {
    console.out << writeJson(list) << '\n';
  } else {
    writeTable(console.out, rows);
  }
  return present ? ExitStatus::done : ExitStatus::refused;
}

ExitStatus RestoreCommand::run(Console& console) {
  StyleSession session(console);
  const Result<std::vector<EarlierSet>> sets = session.earlier().list();
  if (!sets) return tell(console, sets.error());
  const std::optional<EarlierSet> set = setWithId(*sets, id_);
  if (!set) return tell(console, noSuchSet(id_));
  const Result<Dictionary> root = session.earlier().read(*set);
  if (!root) return tell(console, root.error());
  return style_.empty() ? session.restore(*set, *root) : session.restoreOne(style_, *set, *root);
}

}  // namespace tarvo
