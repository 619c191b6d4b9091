// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "platform/services/keeping.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

namespace tarvo {

// Replaces a file whole, or creates it, so that a reader and a crash at any moment meet the old bytes or the new ones.
// The bytes go to a temporary file in the target's folder, which is synced and renamed over the target; then the folder
// is synced. A final symbolic link is followed (a chain too) and stays, when it belongs to this user or to the
// system: somebody else's could lead the bytes anywhere. The target of a dangling one is created. An
// existing regular file hands its mode, owner and extended attributes to the new one, as far as the system allows, and
// its owner can read it; a new file gets 0666 less the umask. Fails when the target is anything but a regular file or
// any step before the renaming fails: the target is as it was and the temporary file is gone. A former file is kept as
// asked for just before the renaming (keeping.h), and is dropped there when the renaming fails. privateBelow: of the
// folders above that of kept files, as for makeFolders.
Result<Replaced> replaceFile(const DiskPath& path, std::string_view bytes, const Keeping& keeping = {},
                             const DiskPath& privateBelow = {});

}  // namespace tarvo
