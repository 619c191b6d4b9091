// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <random>
#include <string>
#include <vector>

// Dictionary lists as a translator thinks of them, and random edits of them: nothing here knows the program.
namespace tarvo::test {

using Words = std::vector<std::string>;

struct ListEdit {
  enum class Kind { select, raise, lower, remove, drag, load, chooseStyle, chooseDirection };
  Kind kind = Kind::select;
  std::vector<int> rows;  // selected, dragged, or ticked in the picker
  int place = 0;          // the gap of a drop, the style or the direction
  std::string filter;     // what is typed into the picker before rows are ticked
  bool ticksAllShown = false, cancels = false;
};

class PlainLists {
 public:
  // dictionaries: file names per direction. styles: how many; all lists begin empty.
  PlainLists(std::array<Words, 2> dictionaries, int styles);

  static constexpr int longest = 8;
  int style() const { return style_; }
  int direction() const { return direction_; }
  const Words& list(int style, int direction) const { return lists_[at(style)][at(direction)]; }
  const Words& shown() const { return list(style_, direction_); }
  const std::vector<int>& selected(int direction) const { return selected_[at(direction)]; }
  Words available() const;                                    // what the picker offers
  std::vector<int> passing(const std::string& filter) const;  // rows of it that a filter shows
  bool takes(const ListEdit& edit) const;                     // whether the ticked ones still fit

  // One that a user can make now.
  ListEdit randomEdit(std::mt19937& random) const;
  void apply(const ListEdit& edit);

 private:
  static std::size_t at(int index) { return static_cast<std::size_t>(index); }
  bool isPossible(ListEdit::Kind kind) const;
  ListEdit randomLoad(std::mt19937& random) const;
  void move(int step);
  void remove();
  void drag(const std::vector<int>& rows, int place);
  void load(const ListEdit& edit);
  void trimSelections();
  Words& current() { return lists_[at(style_)][at(direction_)]; }
  std::vector<int>& selection() { return selected_[at(direction_)]; }
  std::array<Words, 2> dictionaries_;
  std::vector<std::array<Words, 2>> lists_;
  std::array<std::vector<int>, 2> selected_;
  int style_ = 0, direction_ = 0;
};

}  // namespace tarvo::test
