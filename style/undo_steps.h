// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <deque>
#include <functional>

#include "style/style_store.h"

// The last edits of this run, to be taken back and made again.
// Duty: remember what each edit of the user replaced, and put it back by an edit of the same kind: one write, one
// registration. Not: showing. A step holds its value before and after; it can be taken only while the present value is
// the one that it left behind, so that nothing is undone over somebody else's work. What the program repairs by itself
// belongs to the steps that left or would find what it repaired; what comes from the style service is no step.
namespace tarvo {

class UndoSteps {
 public:
  // The store outlives it.
  explicit UndoSteps(StyleStore& store) : store_(store) {}

  // A change of the store (StyleStore::didChange). True: it is a step of its own.
  bool note(const StoredChange& change);

  enum class Way { undo, redo };
  // nothing: there is no step. changed: its value is another one by now.
  enum class State { ready, nothing, changed };
  State state(Way way) const;
  // What the next step does, whichever way: as it was made. Null when there is none.
  const StoredChange* next(Way way) const;
  // Tells the step that undo takes next from every other one of this run; 0 where there is none.
  std::size_t mark() const { return done_ > 0 ? steps_[done_ - 1].mark : 0; }
  // Puts the value back. Only when it is ready.
  void take(Way way);
  // Forgets all steps: the styles are no longer those that they were made on.
  void clear();
  std::function<void()> didChange;  // told when there may be other steps, or others that can be taken, than before

 private:
  void noteRepair(const StoredChange& change);
  bool isPresent(const StoredChange& step, Way way) const;
  void put(const StoredChange& step, Way way);
  struct Step {
    StoredChange change;
    std::size_t mark;
  };
  StyleStore& store_;
  std::deque<Step> steps_;
  std::size_t lastMark_ = 0;
  std::size_t done_ = 0;  // steps before this one can be undone, the others made again
  bool taking_ = false;
};

}  // namespace tarvo
