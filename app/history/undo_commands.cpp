// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/history/undo_commands.h"

#include <string>
#include <utility>

#include "app/history/notices.h"
#include "app/panes.h"
#include "dict/change_words.h"
#include "platform/controls/windows.h"
#include "platform/services/texts.h"
#include "style/process_flags.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

using State = UndoSteps::State;

std::string styleOf(const StoredChange& step) {
  return step.what == StoredChange::What::record ? styleName(step.after) : std::string();
}

}  // namespace

UndoCommands::UndoCommands(Collaborators with) : with_(std::move(with)) {
  with_.steps.didChange = [this] { showSteps(); };
}

void UndoCommands::showSteps() {
  with_.undoMenu.setTitle(titleOf(Way::undo));
  with_.redoMenu.setTitle(titleOf(Way::redo));
  with_.notices.undoTakes(with_.steps.mark());
}

bool UndoCommands::isCovered() const {
  return with_.flags.gMenuControllFlag || with_.windows.covers().hasSheet(with_.myWindow);
}

bool UndoCommands::allows(Way way) const {
  const bool isInView = paneForTag(with_.panes.selectedPage()) == Pane::style;
  return isInView && !isCovered() && with_.steps.state(way) == State::ready;
}

std::string UndoCommands::titleOf(Way way) const {
  const StoredChange* step = with_.steps.next(way);
  if (step == nullptr) return (way == Way::undo ? with_.undoMenu : with_.redoMenu).label();
  const std::string title =
      filledIn(with_.texts.localized(way == Way::undo ? "Undo.step" : "Redo.step"), nameOfEdit(*step, with_.texts));
  // Who meets the command switched off reads or hears why.
  return with_.steps.state(way) == State::changed ? title + with_.texts.localized("Undo.changed") : title;
}

void UndoCommands::take(Way way) {
  if (isCovered() || with_.steps.next(way) == nullptr) return;
  if (with_.steps.state(way) != State::ready) return with_.notices.tell({.text = titleOf(way)});
  const StoredChange step = *with_.steps.next(way);
  with_.steps.take(way);
  with_.showStyles();
  const std::string name = styleOf(step);
  const std::string done =
      filledIn(with_.texts.localized(way == Way::undo ? "Undo.done" : "Redo.done"), nameOfEdit(step, with_.texts));
  with_.notices.tell({.text = name.empty() ? done : name + ": " + done});
}

void UndoCommands::stylesCameFromElsewhere(bool keepsOrder) {
  if (keepsOrder) return showSteps();
  const bool hadSteps = with_.steps.next(Way::undo) != nullptr || with_.steps.next(Way::redo) != nullptr;
  with_.steps.clear();
  if (hadSteps) with_.notices.tell({.text = with_.texts.localized("Undo.ended")});
}

}  // namespace tarvo
