// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>
#include <vector>

#include "platform/text/paths.h"

// Temporary files that a program left behind when it was killed or the power went. Their names (temporaryName in
// descriptor.h) tell who made them: boot and process namespace, process, and when that process began.
namespace tarvo {

// Whether the name is that of a temporary file whose maker has ended. False where that cannot be known: another
// namespace's processes are not seen from here.
bool isLeftBehind(std::string_view name);

// Removes what was left behind in these folders, itself owned by this user; nothing below links, nor in folders outside
// the home, which others may share. To be called with the lock of the home held: a program on another machine may write
// there. What cannot be removed stays.
void sweepTemporaries(const DiskPath& home, const std::vector<DiskPath>& folders);

}  // namespace tarvo
