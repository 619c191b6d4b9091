// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/result.h"
#include "platform/text/paths.h"

namespace tarvo {

// Keeps the present bytes of a regular file beside it as "<name>.unreadable", then ".unreadable.2" to ".unreadable.5";
// with all five taken the fifth is replaced. A hard link where the disk can, so that a full disk is no obstacle, else a
// copy; it is on the disk before this returns. Bytes that are kept already are not kept twice. A link at the path is
// followed; the kept file lies beside the link.
Result<> keepUnreadableFile(const DiskPath& path);

}  // namespace tarvo
