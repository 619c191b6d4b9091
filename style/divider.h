// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plist/property_list.h"

namespace tarvo {

class Texts;

// Whether a record is no style but the line between styles: its name is the divider's text. A name that is missing or
// no text counts as an empty one.
bool isDivider(const Dictionary& record, const Texts& texts);

}  // namespace tarvo
