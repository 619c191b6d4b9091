// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_sniff.h"

namespace tarvo {

PlistForm plistForm(std::string_view bytes) {
  if (bytes.starts_with("bplist00")) return PlistForm::binary;
  if (bytes.starts_with("\xEF\xBB\xBF")) return PlistForm::markedUtf8;
  if (bytes.starts_with("\xFE\xFF") || bytes.starts_with("\xFF\xFE")) return PlistForm::markedUtf16;
  return PlistForm::declared;
}

}  // namespace tarvo
