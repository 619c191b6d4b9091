// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

// What the first bytes of a property list tell about its form. Source: the byte-order marks of the Unicode Standard.
namespace tarvo {

enum class PlistForm {
  binary,      // "bplist00"
  markedUtf8,  // XML behind a byte-order mark
  markedUtf16,
  markedUtf32,
  declared,  // XML in the encoding that its declaration names, UTF-8 if none; or no property list at all
};

PlistForm plistForm(std::string_view bytes);

}  // namespace tarvo
