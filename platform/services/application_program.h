// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/text/paths.h"

namespace tarvo {

class FileService;

// The program file that starts the application of a name ("Some Editor.app"), looked for in the folders in their
// order. An application is a program file itself, or a bundle: a folder whose program lies in Contents/MacOS under the
// text of "CFBundleExecutable" in its Contents/Info.plist, else under the bundle's name without extension. Nothing
// where no folder is known to hold one, and for a name that is a path.
std::optional<DiskPath> applicationProgram(const FileService& files, const std::vector<DiskPath>& folders,
                                           const std::string& name);

}  // namespace tarvo
