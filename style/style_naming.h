// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/controls.h"

namespace tarvo {

struct NamingOutlets : Outlets {
  Button StyleNameEditButton{*this, "StyleNameEditButton"};
  NamingOutlets() : Outlets("style") {}
};

// Renaming of styles: when it is offered.
class StyleNaming {
 public:
  // styleNamePublic: the display name of the standard style.
  StyleNaming(const PopUpButton& stylePopup, NamingOutlets& outlets, std::string styleNamePublic);
  const std::string& styleNamePublic() const { return styleNamePublic_; }
  // The standard style, index 0, is never renamed.
  void updateStyleNameButton();

 private:
  const PopUpButton& stylePopup_;
  NamingOutlets& outlets_;
  std::string styleNamePublic_;
};

}  // namespace tarvo
