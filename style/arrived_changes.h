// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plist/property_list.h"

namespace tarvo {

// From which set mine and theirs have parted, when nobody knows whether the set "sent", which was made from the base,
// had arrived before theirs was: the base with each change of what was sent that theirs shows. What theirs does not
// show has not arrived, or was changed again. Records pair as style_pairing.h says. Pure.
Array withArrivedChanges(const Array& base, const Array& sent, const Array& theirs);

}  // namespace tarvo
