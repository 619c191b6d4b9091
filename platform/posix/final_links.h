// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/posix/descriptor.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// The links at the end of a path. They lead where their owner wants, so only those of root and of the user that this
// process acts for are followed; in the folders before them anybody's are.
namespace tarvo {

struct FinalTarget {
  DiskPath path;       // of no link, when it was looked at: to be opened with O_NOFOLLOW
  Descriptor present;  // of it, for fstat alone (O_PATH); none: there is nothing of that name
};

// Fails with Reason::foreignLink, with the path of that link, and where the system cannot look. path: absolute.
Result<FinalTarget> followFinalLinks(const DiskPath& path, Attempt attempt);

}  // namespace tarvo
