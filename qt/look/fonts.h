// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <string>

// The fonts of the window.
// Duty: the first family has all letters of the language, because the first letter that a family lacks makes the
// toolkit open and search further fonts, which costs more than painting the whole window; the further families serve
// the other language of the product (dictionary names may be in either). Not: finding out the language.
// Sizes are in points: the platform's, at least 10, times TARVO_FONT_SCALE per cent (50 to 300; else 100).
namespace tarvo {

// language: "ja", "en", …; others are shown like "en". Ask after the application object exists.
QFont applicationFont(const std::string& language);

// The bold face of a heading above a group of controls, of the same size.
QFont headingFont(const QFont& base);

}  // namespace tarvo
