// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

class FileService;
class Locations;

// Ten times the number in "ProductVersion" of "/System/Library/CoreServices/SystemVersion.plist", cut to an
// integer: 10.6.8 gives 106. 10.10 reads as 10.1 and gives 101, an ordering that the product's other tools share. 0
// when it cannot be read.
int systemVersion(const FileService& files, const Locations& locations);

}  // namespace tarvo
