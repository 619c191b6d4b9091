// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_sniff.h"

namespace tarvo {

namespace {
constexpr std::string_view bigUtf32("\0\0\xFE\xFF", 4), littleUtf32("\xFF\xFE\0\0", 4);
}

PlistForm plistForm(std::string_view bytes) {
  if (bytes.starts_with("bplist00")) return PlistForm::binary;
  if (bytes.starts_with("\xEF\xBB\xBF")) return PlistForm::markedUtf8;
  // First: the little-endian mark begins as that of UTF-16 does.
  if (bytes.starts_with(bigUtf32) || bytes.starts_with(littleUtf32)) return PlistForm::markedUtf32;
  if (bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE")) return PlistForm::markedUtf16;
  return PlistForm::declared;
}

}  // namespace tarvo
