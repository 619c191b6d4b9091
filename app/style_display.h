// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plist/property_list.h"
#include "style/direction.h"

namespace tarvo {

class DictController;
class DictionaryListEditing;
class OptionEditing;
class StyleStore;
class TableView;
class Texts;

// Shows one style in the pane: its options and its two dictionary lists. A list that names vanished dictionaries beside
// existing ones is repaired in the store at once.
class StyleDisplay {
 public:
  StyleDisplay(StyleStore& store, OptionEditing& options, DictionaryListEditing& lists, const Texts& texts)
      : store_(store), options_(options), lists_(lists), texts_(texts) {}
  // Nothing for the divider or an index without a record. Lists are not cleared: a direction without a list of its own
  // keeps the marks it had, which an import over another style relies on.
  void setupStyleData2(int index);

 private:
  void showList(int index, Dictionary& record, Direction direction);
  StyleStore& store_;
  OptionEditing& options_;
  DictionaryListEditing& lists_;
  const Texts& texts_;
};

}  // namespace tarvo
