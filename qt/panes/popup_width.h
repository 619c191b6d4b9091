// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QFontMetrics;

namespace tarvo {

class PopUpButton;

// How wide a pop-up of a form has to be to show each of its titles whole. Never less than the width that the forms
// share.
int popUpWidth(const PopUpButton& control, const QFontMetrics& font);

}  // namespace tarvo
