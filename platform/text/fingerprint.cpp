// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/text/fingerprint.h"

#include <xxhash.h>

namespace tarvo {

std::string fingerprint(std::string_view bytes) {
  XXH128_canonical_t value;
  XXH128_canonicalFromHash(&value, XXH3_128bits(bytes.data(), bytes.size()));
  std::string digits;
  for (const unsigned char byte : value.digest) {
    digits += "0123456789abcdef"[byte >> 4];
    digits += "0123456789abcdef"[byte & 15];
  }
  return digits;
}

}  // namespace tarvo
