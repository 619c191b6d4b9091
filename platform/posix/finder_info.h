// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/services/file_service.h"
#include "platform/services/result.h"

// Type and creator codes in the extended attribute "user.com.apple.FinderInfo": 32 bytes, the type at 0 and the creator
// at 4, big-endian; the rest belongs to the desktop and is kept. Source of the layout: struct FileInfo of the Finder
// interface, and the attribute's name as file servers store it on Linux. Links are followed.
namespace tarvo {

Result<FourCharCode> finderType(const DiskPath& path);  // 0 for none
Result<> setFinderCodes(const DiskPath& path, FourCharCode type, FourCharCode creator);
// Gives an open file the codes, on a disk that keeps any. False where it does, and an error of it, or want of room, was
// in the way; errno says which.
bool giveFinderCodes(int file, const FinderCodes& codes);

}  // namespace tarvo
