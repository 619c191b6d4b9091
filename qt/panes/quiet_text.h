// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QLabel;
class QString;
class QWidget;

namespace tarvo {

// A sentence that explains what stands beside it, and steps back behind it.
QLabel* quietText(const QString& text, QWidget* parent);

}  // namespace tarvo
