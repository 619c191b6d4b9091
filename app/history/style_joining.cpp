// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/history/style_joining.h"

#include <algorithm>
#include <utility>

#include "app/history/notices.h"
#include "app/history/undo_commands.h"
#include "dict/change_words.h"
#include "platform/services/failure_text.h"
#include "platform/services/panels.h"
#include "platform/services/texts.h"
#include "style/style_changes.h"
#include "style/style_history.h"
#include "style/style_keys.h"
#include "style/style_pairing.h"
#include "style/style_records.h"
#include "style/style_store.h"
#include "style/undo_steps.h"

namespace tarvo {

namespace {

bool keepsOrder(const MergedStyles& joined) {
  for (std::size_t place = 0; place < joined.placesOfMine.size(); ++place) {
    if (joined.placesOfMine[place] != place) return false;
  }
  return true;
}

}  // namespace

Result<StyleJoining::Sets> StyleJoining::setsFor(const std::string& id) const {
  if (id.empty()) return joinable(with_.store.lastStored(), with_.store.readPresent(), with_.store.path());
  Result<std::vector<EarlierSet>> sets = with_.earlier.list();
  if (!sets) return sets.error();
  const std::optional<EarlierSet> set = setWithId(std::move(*sets), id);
  const std::optional<StyleStore::ForeignSet>& foreign = with_.store.foreign();
  if (!set || !foreign) return Failure{with_.earlier.folder().text(), Attempt::read, Reason::noStyle};
  return joinable(foreign->base, with_.earlier.read(*set), set->path);
}

// What holds something else than styles would remove those that are here.
Result<StyleJoining::Sets> StyleJoining::joinable(Dictionary base, Result<Dictionary> theirs, const DiskPath& path) {
  if (!theirs) return theirs.error();
  if (!holdsStyles(*theirs)) return Failure{path.text(), Attempt::read, Reason::damaged};
  return Sets{.base = std::move(base), .theirs = std::move(*theirs)};
}

void StyleJoining::join(const std::string& id) {
  const Result<Sets> sets = setsFor(id);
  if (!sets) return with_.notices.tell({.text = failureText(sets.error(), with_.texts)});
  const Array base = stylesIn(sets->base), mine = stylesIn(with_.store.root()), theirs = stylesIn(sets->theirs);
  MergedStyles joined =
      mergeStyles({.base = base, .mine = mine, .theirs = theirs, .mineIsNewer = true}, with_.knowledge());
  const Texts& texts = with_.texts;
  const int answer = with_.panels.runAlertPanel(
      {.title = texts.localized("JoinHeader"),
       .message = effectOf(joined.styles, joined.notes),
       .buttons = {texts.localized("JoinButton"), texts.localized("JoinCancel"), texts.localized("JoinEarlier")},
       .details = {},
       .cancelButton = 1});
  if (answer == 0) store(sets->theirs, std::move(joined));
  if (answer == 2) with_.showEarlier(id);
}

std::string StyleJoining::effectOf(const Array& joined, const std::vector<MergeNote>& notes) const {
  constexpr std::size_t mostLines = 8;  // an alert cannot be scrolled
  const std::string lines = changesInLines(styleChanges(stylesIn(with_.store.root()), joined), mostLines, with_.texts);
  std::string text = with_.texts.localized(lines.empty() ? "JoinNothing" : "JoinMessage");
  if (!lines.empty()) text.append("\n").append(lines);
  const auto clashes = std::ranges::count(notes, MergeNote::Kind::otherValue, &MergeNote::kind);
  if (clashes > 0) {
    text.append("\n").append(filledIn(with_.texts.localized("JoinClashes"), std::to_string(clashes)));
  }
  return text;
}

void StyleJoining::store(const Dictionary& theirs, MergedStyles joined) {
  Dictionary root = with_.store.root();
  if (root.dictionary(keyNameSelection) != nullptr) {
    moveSelection(root, joined.placesOfMine);
  } else if (const Dictionary* other = theirs.dictionary(keyNameSelection)) {
    root.set(keyNameSelection, *other);
  }
  const bool isInOrder = keepsOrder(joined);
  root.set(keyNameStyle, std::move(joined.styles));
  with_.undo.stylesCameFromElsewhere(isInOrder);
  with_.store.endStandIn();
  const std::size_t before = with_.steps.mark();
  with_.store.replaceRoot(std::move(root), ChangeKind::merge);
  const std::size_t step = with_.steps.mark();
  with_.showStyles();
  with_.notices.tell(doneNotice(with_.texts.localized("Notice.joined"), before, step));
}

}  // namespace tarvo
