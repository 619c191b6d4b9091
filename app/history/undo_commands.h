// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

#include "style/undo_steps.h"

// Edit > Undo and Redo.
// Duty: call the two commands after the steps that they would take, or after what stands in the way; take a step, have
// the styles shown again and tell what was done. Not: the steps (style/undo_steps.h).
namespace tarvo {

class MenuItem;
class Notices;
class TabView;
class Texts;
class Window;
class Windows;
struct ProcessFlags;

class UndoCommands {
 public:
  using Way = UndoSteps::Way;
  // Not owned.
  struct Collaborators {
    UndoSteps& steps;
    MenuItem& undoMenu;
    MenuItem& redoMenu;
    const TabView& panes;  // of the main window
    Window& myWindow;      // the main window
    Windows& windows;
    const ProcessFlags& flags;
    Notices& notices;
    const Texts& texts;
    std::function<void()> showStyles;
  };
  explicit UndoCommands(Collaborators with);

  // Also from a notice, whichever pane is in view. A step that does not find what it left behind is not taken, and that
  // is told.
  void undo() { take(Way::undo); }
  void redo() { take(Way::redo); }
  // Whether the menu offers it: while the style pane is in view, no sheet hangs over it and the step can be taken.
  bool allows(Way way) const;
  // The styles are others than those that the steps were made on. keepsOrder: each still has its place.
  void stylesCameFromElsewhere(bool keepsOrder);

 private:
  void take(Way way);
  void showSteps();  // in the titles, and in what the line still offers
  bool isCovered() const;
  std::string titleOf(Way way) const;
  Collaborators with_;
};

}  // namespace tarvo
