// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

// Opens a dialog as a sheet: without a frame, hung below the host's toolbar, following the host, shutting out the host
// alone. Returns at once. top: distance from the upper edge of the host's inside.
void openSheet(QDialog& dialog, QWidget& host, int top);

}  // namespace tarvo
