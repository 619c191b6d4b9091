// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace tarvo {

// The least that replaces a file safely: write a file beside it, sync, rename, sync the folder. Keeps nothing of the
// old file and follows no link. Throws std::system_error.
void bareReplace(const std::string& path, const std::string& bytes);

// A whole file; throws std::system_error when it cannot be opened.
std::string readWholeFile(const std::string& path);

}  // namespace tarvo
