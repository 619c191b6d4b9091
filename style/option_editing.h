// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <deque>

#include "platform/controls/controls.h"
#include "platform/plist/property_list.h"

// Shows a style's options in their pop-ups and writes each change back into the style at once.
// Duty: the option half of showing and editing a style. Not: dictionaries, or which style is shown.
namespace tarvo {

class StyleStore;
class Texts;

struct OptionOutlets : Outlets {
  PopUpButton ejEditPopup{*this, "ejEditPopup"}, jeEditPopup{*this, "jeEditPopup"};
  TabView ejEditTab{*this, "ejEditTab"}, jeEditTab{*this, "jeEditTab"};  // pages "Dict" and "Option"
  View ejOptionView{*this, "ejOptionView"}, jeOptionView{*this, "jeOptionView"};
  std::deque<PopUpButton> indexPopups;   // one per row of indexOptions(), in its order
  std::deque<PopUpButton> detailPopups;  // one per row of detailOptions(), in its order
  OptionOutlets();
};

class OptionEditing {
 public:
  OptionEditing(StyleStore& store, OptionOutlets& outlets, const Texts& texts)
      : store_(store), outlets_(outlets), texts_(texts) {}

  // Selects the items whose indexes a record holds; a missing key reads as 0.
  void showOptions(const Dictionary& record);
  // Selects, in each detailed pop-up, the item of the value that the record holds; none where it holds no value of the
  // table.
  void showDetailedOptions(const Dictionary& record);

  // Stores the index shown by the named pop-up of the sender's tag. A tag without an option writes the record back
  // unchanged.
  void optionPopupChange(int senderTag);
  // Stores the text that the sender's selected item stands for. A control that is none of the 36 changes nothing.
  void selectJeOptionPopup(Control& sender);
  // Shows the page that the edit pop-up of the direction names: tag 0 "Dict", any other "Option".
  void selectEjEditPopup();
  void selectJeEditPopup();

 private:
  StyleStore& store_;
  OptionOutlets& outlets_;
  const Texts& texts_;
};

}  // namespace tarvo
