// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/content_hash.h"

#include <openssl/evp.h>

#include <array>
#include <stdexcept>

namespace tarvo {

std::string contentHash(std::string_view bytes) {
  std::array<unsigned char, contentHashSize / 2> digest{};
  if (EVP_Digest(bytes.data(), bytes.size(), digest.data(), nullptr, EVP_sha256(), nullptr) != 1) {
    throw std::runtime_error("the cryptographic library has no SHA-256");
  }
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (const unsigned char byte : digest) {
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
  return text;
}

}  // namespace tarvo
