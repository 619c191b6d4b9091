// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>
#include <string>

// What happened without a question: the line at the foot of the window, and the same sentences in a terminal.
// Duty: remember the latest fifty, and which of them the line shows. Not: making sentences, or showing.
namespace tarvo {

struct Notice {
  // What the button beside it does; none has no button.
  enum class Offer { none, undo, restore, merge };
  std::string text;
  Offer offer = Offer::none;
  std::string earlierSet;  // id of the set that is to be restored or merged
  std::size_t step = 0;    // the step that undo takes back (UndoSteps::mark)
};

// Of something that was done. It offers to take that back when a step came of it: stepBefore and step are the marks of
// the steps that undo would have taken before it and takes now (UndoSteps::mark).
Notice doneNotice(std::string text, std::size_t stepBefore, std::size_t step);

class Notices {
 public:
  // Shown until another one is told or the user takes it away.
  void tell(Notice notice);
  // The same for what is said beside an edit: it does not take the place of a notice that offers something.
  void tellAside(Notice notice);
  // A state: it stands in the line before all others until it ends with nothing. Not among the latest twice.
  void setStanding(std::optional<Notice> notice);
  // Undo takes this step next: a notice that offers to take another one back is no longer shown.
  void undoTakes(std::size_t step);
  // Takes the shown one away; a standing one stays.
  void dismiss();

  const Notice* shown() const;                                  // null: the line is empty
  const std::deque<Notice>& latest() const { return latest_; }  // newest first
  std::function<void()> didChange;

 private:
  void remember(const Notice& notice);
  void changed() const;
  std::deque<Notice> latest_;
  std::optional<Notice> told_, standing_;
};

}  // namespace tarvo
