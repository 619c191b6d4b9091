// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/soak/plain_lists.h"

#include <algorithm>
#include <iterator>

namespace tarvo::test {

namespace {

using Kind = ListEdit::Kind;

int below(std::mt19937& random, std::size_t limit) { return static_cast<int>(random() % limit); }

std::vector<int> someOf(std::mt19937& random, const std::vector<int>& rows, std::size_t count) {
  std::vector<int> some;
  std::sample(rows.begin(), rows.end(), std::back_inserter(some), static_cast<std::ptrdiff_t>(count), random);
  return some;  // ascending, as the rows are
}

std::vector<int> countedTo(std::size_t count) {
  std::vector<int> rows(count);
  for (std::size_t i = 0; i < count; ++i) rows[i] = static_cast<int>(i);
  return rows;
}

std::string lower(std::string text) {
  for (char& letter : text) {
    if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
  }
  return text;
}

bool holds(const Words& words, const std::string& word) {
  return std::find(words.begin(), words.end(), word) != words.end();
}

}  // namespace

PlainLists::PlainLists(std::array<Words, 2> dictionaries, int styles)
    : dictionaries_(std::move(dictionaries)), lists_(at(styles)) {
  for (Words& words : dictionaries_) std::sort(words.begin(), words.end());
}

Words PlainLists::available() const {
  Words others;
  for (const std::string& name : dictionaries_[at(direction_)]) {
    if (!holds(shown(), name)) others.push_back(name);
  }
  return others;
}

std::vector<int> PlainLists::passing(const std::string& filter) const {
  std::vector<int> rows;
  const Words names = available();
  for (std::size_t row = 0; row < names.size(); ++row) {
    if (lower(names[row]).find(lower(filter)) != std::string::npos) rows.push_back(static_cast<int>(row));
  }
  return rows;
}

bool PlainLists::takes(const ListEdit& edit) const { return shown().size() + edit.rows.size() <= longest; }

bool PlainLists::isPossible(Kind kind) const {
  const std::vector<int>& selected = selected_[at(direction_)];
  switch (kind) {
    case Kind::raise: return !selected.empty() && selected.back() > 0;
    case Kind::lower: return !selected.empty() && selected.back() < static_cast<int>(shown().size()) - 1;
    case Kind::remove: return !selected.empty();
    case Kind::select:
    case Kind::drag: return !shown().empty();
    case Kind::load: return shown().size() < longest;
    case Kind::chooseStyle:
    case Kind::chooseDirection: return true;
  }
  return false;
}

ListEdit PlainLists::randomLoad(std::mt19937& random) const {
  static const Words filters{"", "", "a", "LAW", "学", ".jtd", "nothing has this"};
  ListEdit edit{.kind = Kind::load, .filter = filters[at(below(random, filters.size()))]};
  const std::vector<int> rows = passing(edit.filter);
  edit.ticksAllShown = below(random, 6) == 0;
  edit.cancels = below(random, 10) == 0;
  edit.rows = edit.ticksAllShown ? rows : someOf(random, rows, random() % 4);
  return edit;
}

ListEdit PlainLists::randomEdit(std::mt19937& random) const {
  static constexpr Kind kinds[] = {Kind::select, Kind::select, Kind::select, Kind::raise,       Kind::lower,
                                   Kind::remove, Kind::drag,   Kind::drag,   Kind::load,        Kind::load,
                                   Kind::load,   Kind::raise,  Kind::lower,  Kind::chooseStyle, Kind::chooseDirection};
  ListEdit edit;
  do {
    edit.kind = kinds[random() % std::size(kinds)];
  } while (!isPossible(edit.kind));
  const std::size_t count = shown().size();
  switch (edit.kind) {
    case Kind::select: edit.rows = someOf(random, countedTo(count), random() % 3); break;
    case Kind::drag:
      edit.rows = someOf(random, countedTo(count), 1 + random() % 3);
      edit.place = below(random, count + 1);
      break;
    case Kind::load: return randomLoad(random);
    case Kind::chooseStyle: edit.place = below(random, lists_.size()); break;
    case Kind::chooseDirection: edit.place = below(random, 2); break;
    default: break;
  }
  return edit;
}

void PlainLists::move(int step) {
  const int row = selection().back();
  std::swap(current()[at(row)], current()[at(row + step)]);
  selection() = {row + step};
}

void PlainLists::remove() { current().erase(current().begin() + selection().back()); }

void PlainLists::drag(const std::vector<int>& rows, int place) {
  Words before, moved, behind;
  for (int row = 0; row < static_cast<int>(shown().size()); ++row) {
    const bool isDragged = std::binary_search(rows.begin(), rows.end(), row);
    (isDragged ? moved : row < place ? before : behind).push_back(shown()[at(row)]);
  }
  selection() = countedTo(moved.size());
  for (int& row : selection()) row += static_cast<int>(before.size());
  current() = before;
  current().insert(current().end(), moved.begin(), moved.end());
  current().insert(current().end(), behind.begin(), behind.end());
}

void PlainLists::load(const ListEdit& edit) {
  if (edit.cancels || !takes(edit)) return;
  const Words names = available();
  for (const int row : edit.rows) current().push_back(names[at(row)]);
}

// A list that is read anew keeps the selected rows that it still has.
void PlainLists::trimSelections() {
  for (const int direction : {0, 1}) {
    std::erase_if(selected_[at(direction)],
                  [&](int row) { return row >= static_cast<int>(list(style_, direction).size()); });
  }
}

void PlainLists::apply(const ListEdit& edit) {
  switch (edit.kind) {
    case Kind::select: selection() = edit.rows; break;
    case Kind::raise: move(-1); break;
    case Kind::lower: move(1); break;
    case Kind::remove: remove(); break;
    case Kind::drag: drag(edit.rows, edit.place); break;
    case Kind::load: load(edit); break;
    case Kind::chooseStyle: style_ = edit.place; break;
    case Kind::chooseDirection: direction_ = edit.place; break;
  }
  trimSelections();
}

}  // namespace tarvo::test
