// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plist/json.h"

namespace tarvo {

class Control;

// What a control shows, as one object: name, kind, enabled, visible, and what belongs to its kind.
// A row that a filter hides is null among the cells, so that the others keep their numbers.
Json stateOf(const Control& control);

}  // namespace tarvo
