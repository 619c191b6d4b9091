// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

#include "dict/dict_controller.h"
#include "style/direction.h"

// What an edit does to the technical dictionaries that a style uses, below the controls that ask for it.
// Duty: one edit, one write, one registration. Not: checking that a file exists, telling, showing.
// list: the model that shows this list; it is edited, and what it has loaded then is stored. Where the folder of the
// list could not be read each fails with the reason, and nothing has changed: what it has loaded is not all there is.
namespace tarvo {

class StyleStore;
class Texts;

// The list of a direction of the style at the index.
struct ListPlace {
  int style = 0;
  Direction direction = Direction::englishToJapanese;
};

class ListEdits {
 public:
  ListEdits(StyleStore& store, const Texts& texts) : store_(store), texts_(texts) {}
  // The caller has seen that there is room for them (DictController::checkMaxOver).
  Result<> add(ListPlace place, DictController& list, const Names& names) const;
  Result<> remove(ListPlace place, DictController& list, const Names& names) const;
  Result<> exchange(ListPlace place, DictController& list, int position, int other) const;
  Result<> arrange(ListPlace place, DictController& list, const Names& order) const;  // loads exactly these
  Result<> storeLoaded(ListPlace place, const DictController& list) const;
  // Stores the names, whatever a model has loaded, under "TD"; nothing removes the key. The divider, and a record
  // without the direction's half, get none; they are written back as they are.
  void store(ListPlace place, const std::optional<Names>& names) const;

 private:
  StyleStore& store_;
  const Texts& texts_;
};

}  // namespace tarvo
