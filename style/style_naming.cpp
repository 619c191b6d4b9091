// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_naming.h"

#include <utility>

namespace tarvo {

StyleNaming::StyleNaming(const PopUpButton& stylePopup, NamingOutlets& outlets, std::string styleNamePublic)
    : stylePopup_(stylePopup), outlets_(outlets), styleNamePublic_(std::move(styleNamePublic)) {}

void StyleNaming::updateStyleNameButton() {
  outlets_.StyleNameEditButton.setEnabled(stylePopup_.indexOfSelectedItem() != 0);
}

}  // namespace tarvo
