// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

// The panes of the main window, in the order of its pages, by which tags and page numbers know them.
enum class Pane { style, office, mail };

constexpr int tagOf(Pane pane) { return static_cast<int>(pane); }

}  // namespace tarvo
