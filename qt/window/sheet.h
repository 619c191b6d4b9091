// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QDialog;
class QWidget;

namespace tarvo {

// Opens a dialog as a sheet: without a frame, hung below the host's toolbar, following the host. Returns at once.
// Until the sheet is hidden the host takes neither mouse nor keyboard nor its close box. Its menu bar stays open and
// its shortcuts go on, since each command says itself what it allows; that is why the toolkit's own modality, which
// shuts out a whole window, is not used. top: distance from the upper edge of the host's inside.
void openSheet(QDialog& dialog, QWidget& host, int top);

// The sheet that hangs in a window; null when there is none.
QDialog* sheetOver(const QWidget& host);

}  // namespace tarvo
