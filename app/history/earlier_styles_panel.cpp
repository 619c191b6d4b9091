// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/history/earlier_styles_panel.h"

#include <algorithm>
#include <utility>

#include "app/history/notices.h"
#include "dict/change_words.h"
#include "platform/services/failure_text.h"
#include "platform/services/texts.h"
#include "style/style_changes.h"
#include "style/style_records.h"
#include "style/style_store.h"
#include "style/undo_steps.h"

namespace tarvo {

namespace {

constexpr std::size_t mostLines = 12;  // of what a set would change; a set of another machine may differ in everything

}  // namespace

void EarlierStylesPanel::run(const std::string& id) {
  EarlierStylesOutlets& outlets = with_.outlets;
  Result<std::vector<EarlierSet>> sets = with_.earlier.list();
  unlisted_ = sets ? std::nullopt : std::optional(sets.error());
  history_.emplace(with_.earlier, sets ? std::move(*sets) : std::vector<EarlierSet>(), stylesIn(with_.store.root()));
  outlets.earlierStylesTable.deselectAll();
  outlets.earlierStylesTable.reloadData();
  if (const int row = rowOfSet(id); row >= 0) {
    outlets.earlierStylesTable.selectRows({row});
    outlets.earlierStylesTable.scrollRowToVisible(row);
  }
  selectionDidChange(outlets.earlierStylesTable);
  with_.windows.runModalForWindow(outlets.earlierStylesWindow);
  with_.windows.orderOut(outlets.earlierStylesWindow);
  history_.reset();
  outlets.earlierStylesTable.reloadData();
}

int EarlierStylesPanel::rowOfSet(const std::string& id) {
  if (!history_) return -1;
  for (std::size_t row = 0; row < history_->sets().size(); ++row) {
    const EarlierSet& set = history_->sets()[row];
    if (id.empty() ? set.kind != ChangeKind::unreadable : set.id == id) return static_cast<int>(row);
  }
  return -1;
}

std::optional<std::size_t> EarlierStylesPanel::chosenRow() const {
  const int row = with_.outlets.earlierStylesTable.selectedRow();
  if (!history_ || row < 0 || std::cmp_greater_equal(row, history_->sets().size())) return std::nullopt;
  return static_cast<std::size_t>(row);
}

// Somebody who looks for what was done to one style means that one.
int EarlierStylesPanel::offeredStyle() {
  const int shown = with_.stylePopup.indexOfSelectedItem();
  const std::optional<std::size_t> row = chosenRow();
  if (!row || !history_) return shown;
  const std::vector<StyleChange>& changes = history_->entry(*row).changes;
  const bool isOfOne = !changes.empty() && std::ranges::all_of(changes, [&changes](const StyleChange& change) {
    return change.style == changes.front().style && change.kind != StyleChange::Kind::moved;
  });
  if (!isOfOne) return shown;
  const Array& styles = stylesIn(with_.store.root());
  const auto found = std::ranges::find(styles, changes.front().style, recordName);
  return found != styles.end() ? static_cast<int>(found - styles.begin()) : shown;
}

void EarlierStylesPanel::selectionDidChange(TableView&) {
  const std::optional<std::size_t> row = chosenRow();
  chosen_.reset();
  std::string text = unlisted_ ? failureText(*unlisted_, with_.texts) : with_.texts.localized("History.none");
  if (row && history_) {
    const EarlierSet& set = history_->sets()[*row];
    Result<Dictionary> root = with_.earlier.read(set);
    text = root ? effectOf(*root, set) : failureText(root.error(), with_.texts);
    if (root) chosen_ = std::move(*root);
  }
  offered_ = offeredStyle();
  const std::optional<Dictionary> offered = with_.store.getStyleAtIndex(offered_);
  with_.outlets.earlierStylesText.setStringValue(text);
  with_.outlets.restoreAllButton.setEnabled(chosen_ && holdsStyles(*chosen_));
  with_.outlets.restoreStyleButton.setEnabled(chosen_.has_value() && offered.has_value());
  with_.outlets.restoreStyleButton.setLabel(
      filledIn(with_.texts.localized("History.restoreStyle"), offered ? styleName(*offered) : std::string()));
}

std::string EarlierStylesPanel::effectOf(const Dictionary& root, const EarlierSet& set) const {
  if (!holdsStyles(root)) return failureText({set.path.text(), Attempt::read, Reason::damaged}, with_.texts);
  const std::string lines =
      changesInLines(styleChanges(stylesIn(with_.store.root()), stylesIn(root)), mostLines, with_.texts);
  if (lines.empty()) return with_.texts.localized("History.same");
  return with_.texts.localized("History.would") + "\n" + lines;
}

void EarlierStylesPanel::restoreAll() {
  const std::optional<std::size_t> row = chosenRow();
  if (!row || !history_ || !chosen_) return;
  const std::string time = localText(history_->sets()[*row].time);
  const std::size_t before = with_.steps.mark();
  if (restoreStyles(with_.store, *chosen_)) didRestore(before, "Notice.restoredAll", time);
}

void EarlierStylesPanel::restoreStyle() {
  const std::optional<Dictionary> offered = with_.store.getStyleAtIndex(offered_);
  if (!chosen_ || !offered) return;
  const std::string name = styleName(*offered);
  const std::size_t before = with_.steps.mark();
  if (!tarvo::restoreStyle(with_.store, offered_, *chosen_, with_.standardName)) {
    return with_.outlets.earlierStylesText.setStringValue(filledIn(with_.texts.localized("History.noStyle"), name));
  }
  didRestore(before, "Notice.restoredStyle", name);
}

void EarlierStylesPanel::didRestore(std::size_t stepBefore, const std::string& key, const std::string& value) {
  const std::size_t step = with_.steps.mark();
  with_.showStyles();
  with_.notices.tell(doneNotice(filledIn(with_.texts.localized(key), value), stepBefore, step));
  close();
}

int EarlierStylesPanel::numberOfRowsInTableView(TableView&) {
  return history_ ? static_cast<int>(history_->sets().size()) : 0;
}

CellValue EarlierStylesPanel::objectValueForTableColumn(TableView&, std::string_view column, int row) {
  CellValue cell;
  if (!history_ || row < 0 || std::cmp_greater_equal(row, history_->sets().size())) return cell;
  const std::size_t place = static_cast<std::size_t>(row);
  const EarlierSet& set = history_->sets()[place];
  if (column == history_columns::time) cell.text = localText(set.time);
  if (column == history_columns::kind)
    cell.text = with_.texts.localized("History.kind." + std::string(nameOf(set.kind)));
  if (column == history_columns::changed) {
    const HistoryEntry& entry = history_->entry(place);
    cell.text =
        entry.damage ? failureCauseText(*entry.damage, with_.texts) : changesInOneLine(entry.changes, with_.texts);
  }
  return cell;
}

}  // namespace tarvo
