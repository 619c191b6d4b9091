// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "platform/services/result.h"
#include "platform/text/paths.h"

namespace tarvo {

class FileService;

// In what an installed file, or folder with all in it, differs from the product's: what is gone, emptied, holds
// something else, or cannot be compared. Each with its path among the installed ones. What lies there besides is the
// user's and counts for nothing; links among the product's files are not compared. Only reads.
std::vector<Failure> differencesOf(const DiskPath& installed, const DiskPath& shipped, const FileService& files);

}  // namespace tarvo
