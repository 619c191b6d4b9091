// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

class QFileDialog;

namespace tarvo {

// Lays out the toolkit's panel for files or folders, once it knows which: room for the names of places and files, dates
// in full, and no types, since a panel shows folders and files of one type.
void arrangeFilePanel(QFileDialog& panel);

}  // namespace tarvo
