// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QFontMetrics;
class QLabel;

namespace tarvo {

// About fifty letters.
int readableWidth(const QFontMetrics& font);

// Wraps the text of a dialog at that width, and narrower where it then takes no more lines: the last line is no shorter
// than it must be. Call it once the label has its text and font.
void wrapReadably(QLabel& label);

}  // namespace tarvo
