// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo {

class Registry;

// The first difference between a control and the widget that shows it ("style.stylePopup: index 2, shown 0"), "" when
// there is none. Looks at items, index, enabled and hidden state, texts, rows, cells, selection, pages and titles.
std::string outOfStep(const Registry& registry);

}  // namespace tarvo
