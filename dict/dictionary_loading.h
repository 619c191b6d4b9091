// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "style/direction.h"

namespace tarvo {

class DictionaryListEditing;
class PaneAlerts;
class RunningApplicationGuard;
class TechDicController;
class Texts;
struct NewDictionaryRequest;

// Adding technical dictionaries to the shown style through the picker.
class DictionaryLoading {
 public:
  // request: the style pane's; its direction is that of the picker while the picker is open.
  DictionaryLoading(DictionaryListEditing& lists, TechDicController& picker, NewDictionaryRequest& request,
                    PaneAlerts& alerts, RunningApplicationGuard& guard, const Texts& texts);

  // Scans the direction's folder anew and opens the picker on what the list does not hold. Returns when it was closed.
  void loadTD(int senderTag);
  // Adds what is ticked; where the folder could not be read nothing is added and the picker stays. Tells about a file
  // that has vanished and adds the others; a list that would become too long is told, and nothing is added and the
  // picker stays.
  void dicWindowOK();
  // The same without looking for vanished files; closes the picker before it saves.
  void dicWindowOK2();
  void dicWindowCancel();
  void setSelectedDic(Direction direction);      // loads exactly what is ticked; nothing is saved
  void setNonSelectionDic(Direction direction);  // hands the picker what the list does not hold

 private:
  DictionaryListEditing& lists_;
  TechDicController& picker_;
  NewDictionaryRequest& request_;
  PaneAlerts& alerts_;
  RunningApplicationGuard& guard_;
  const Texts& texts_;
};

}  // namespace tarvo
