// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "dict/dict_controller.h"
#include "style/style_merge.h"

namespace tarvo {

class MedicalDictionaries;

// What sets are joined by on this machine, as its disk is now: each name of a dictionary is looked for once. Of one
// thread, any. What it is made from must outlive it.
MergeKnowledge mergeKnowledge(const DictController::Services& services, const MedicalDictionaries& medical);

}  // namespace tarvo
