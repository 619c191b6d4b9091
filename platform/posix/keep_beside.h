// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services/result.h"
#include "platform/text/paths.h"

namespace tarvo {

// Keeps the present bytes of a regular file beside it as "<name><ending>", then "<name><ending>.2" to ".5"; with all
// five taken the fifth is replaced. A hard link where the disk can, so that a full disk is no obstacle, else a copy; it
// is on the disk when this returns. Bytes that are kept already are not kept twice. A link at the path is followed; the
// kept file lies beside the link. Its path. A copy that could not be synced fails, and stays.
Result<DiskPath> keepBeside(const DiskPath& path, const std::string& ending);

}  // namespace tarvo
