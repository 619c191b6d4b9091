// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

class PopUpButton;
class StyleStore;
class Texts;

// Fills the style menu from the records: an item each, so that menu index and style index agree. The record named like
// the divider's text becomes a separator that keeps its name. Without "Style" the items that are there stay.
void fillStyleMenu(PopUpButton& stylePopup, const StyleStore& store, const Texts& texts);

}  // namespace tarvo
