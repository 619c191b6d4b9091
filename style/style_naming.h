// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/controls/controls.h"
#include "platform/controls/windows.h"
#include "platform/plist/property_list.h"

namespace tarvo {

class PaneAlerts;
class StyleStore;
struct ProcessFlags;

struct NamingOutlets : Outlets {
  Button StyleNameEditButton{*this, "StyleNameEditButton"};
  Window styleNameWindow{*this, "styleNameWindow"};
  TextField styleNameField{*this, "styleNameField"};
  Button snOKButton{*this, "snOKButton"}, snCancelButton{*this, "snCancelButton"};
  NamingOutlets() : Outlets("style") {}
};

// Renaming of styles: when it is offered, its sheet, and the rules of a name.
// Duty: every check of a name that a user types; names have no forbidden characters and no greatest length. Not: names
// that come from files or the engine.
class StyleNaming {
 public:
  // Who works together here. Not owned.
  struct Collaborators {
    NamingOutlets& outlets;
    PopUpButton& stylePopup;
    Window& myWindow;  // the main window
    StyleStore& store;
    ProcessFlags& flags;
    PaneAlerts& alerts;
    Windows& windows;
  };
  // styleNamePublic: the display name of the standard style.
  StyleNaming(const Collaborators& with, std::string styleNamePublic);
  const std::string& styleNamePublic() const { return styleNamePublic_; }
  // The standard style, index 0, is never renamed.
  void updateStyleNameButton();

  // Opens the sheet with the name of the chosen style, once the window is free; without a style that is only told.
  void editStyleName();
  // Renames the style that is chosen now, which a caller may have changed since the sheet came up. A refused name is
  // told and leaves the sheet open; where nothing may be renamed any more the sheet ends like a cancelled one.
  void snOKButtonAction();
  void snCancelButtonAction();
  // Trims the field; whether anything is left.
  bool checkStyleNameEnough();
  // Whether no other style and no standard style has that name, letter case aside. styles: null for none.
  bool checkStyleName(const Array* styles, int nonTargetIndex, const std::string& newName) const;

 private:
  void openSheet();
  void sheetDidEnd();
  Collaborators with_;
  std::string styleNamePublic_;
};

}  // namespace tarvo
