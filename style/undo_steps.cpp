// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/undo_steps.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "style/style_keys.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

constexpr std::size_t mostSteps = 100;

using What = StoredChange::What;

const Dictionary& leftBehind(const StoredChange& step, UndoSteps::Way way) {
  return way == UndoSteps::Way::undo ? step.after : step.before;
}
const Dictionary& toPut(const StoredChange& step, UndoSteps::Way way) {
  return way == UndoSteps::Way::undo ? step.before : step.after;
}

// The tools whose choices a step has changed.
std::vector<std::string> changedTools(const StoredChange& step) {
  std::vector<std::string> tools;
  for (const Dictionary* one : {&step.before, &step.after}) {
    for (const auto& [tool, style] : one->entries()) {
      if (!sameValue(step.before.find(tool), step.after.find(tool))) tools.push_back(tool);
    }
  }
  return tools;
}

}  // namespace

bool UndoSteps::note(const StoredChange& change) {
  const bool isStep = !taking_ && change.kind != ChangeKind::repair && !store_.isAwakening();
  if (isStep) {
    steps_.resize(done_);
    steps_.push_back({change, ++lastMark_});
    if (steps_.size() > mostSteps) steps_.pop_front();
    done_ = steps_.size();
  }
  if (!taking_ && change.kind == ChangeKind::repair) noteRepair(change);
  if (!taking_ && didChange) didChange();
  return isStep;
}

// Without this an import could not be taken back whose names are not all here.
void UndoSteps::noteRepair(const StoredChange& change) {
  if (change.what != What::record) return;
  const auto isOf = [&change](const StoredChange& step, const Dictionary& left) {
    return step.what == What::record && step.index == change.index && left == change.before;
  };
  if (done_ > 0) {
    StoredChange& step = steps_[done_ - 1].change;
    if (isOf(step, step.after)) step.after = change.after;
  }
  if (done_ < steps_.size()) {
    StoredChange& step = steps_[done_].change;
    if (isOf(step, step.before)) step.before = change.after;
  }
}

const StoredChange* UndoSteps::next(Way way) const {
  if (way == Way::undo) return done_ > 0 ? &steps_[done_ - 1].change : nullptr;
  return done_ < steps_.size() ? &steps_[done_].change : nullptr;
}

bool UndoSteps::isPresent(const StoredChange& step, Way way) const {
  const Dictionary& left = leftBehind(step, way);
  if (step.what == What::record) return store_.getStyleAtIndex(step.index) == left;
  if (step.what == What::root) {
    return sameValue(store_.root().find(keyNameStyle), left.find(keyNameStyle)) &&
           sameValue(store_.root().find(keyNameSelection), left.find(keyNameSelection));
  }
  const Dictionary* present = store_.getSelection();
  return present != nullptr && std::ranges::all_of(changedTools(step), [&](const std::string& tool) {
           return sameValue(present->find(tool), left.find(tool));
         });
}

UndoSteps::State UndoSteps::state(Way way) const {
  const StoredChange* step = next(way);
  if (step == nullptr) return State::nothing;
  return isPresent(*step, way) ? State::ready : State::changed;
}

void UndoSteps::put(const StoredChange& step, Way way) {
  const Dictionary& value = toPut(step, way);
  if (step.what == What::record) return store_.setStyle(step.index, value, step.kind);
  if (step.what == What::root) return store_.replaceRoot(value, step.kind);
  Dictionary selection = *store_.getSelection();
  for (const std::string& tool : changedTools(step)) {
    if (const PropertyList* style = value.find(tool)) {
      selection.set(tool, *style);
    } else {
      selection.remove(tool);
    }
  }
  store_.replaceSelection(std::move(selection));
}

void UndoSteps::take(Way way) {
  if (state(way) != State::ready) return;
  const StoredChange step = *next(way);
  taking_ = true;
  put(step, way);
  taking_ = false;
  done_ = way == Way::undo ? done_ - 1 : done_ + 1;
  if (didChange) didChange();
}

void UndoSteps::clear() {
  steps_.clear();
  done_ = 0;
  if (didChange) didChange();
}

}  // namespace tarvo
