// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/content_hash.h"

#include <openssl/evp.h>
#include <openssl/opensslv.h>

#include <array>
#include <stdexcept>

#include "platform/engine/shared_library.h"

namespace tarvo {
namespace {

#define TARVO_TEXT_OF(number) #number
#define TARVO_CRYPTO_LIBRARY(version) "libcrypto.so." TARVO_TEXT_OF(version)

constexpr char cryptoLibrary[] = TARVO_CRYPTO_LIBRARY(OPENSSL_SHLIB_VERSION);  // the one that these headers belong to

bool digestInto(unsigned char* digest, std::string_view bytes) {
  const SharedLibrary crypto(cryptoLibrary);
  const auto sha256 = crypto.function<decltype(EVP_sha256)>("EVP_sha256");
  const auto run = crypto.function<decltype(EVP_Digest)>("EVP_Digest");
  if (sha256 == nullptr || run == nullptr) return false;
  return run(bytes.data(), bytes.size(), digest, nullptr, sha256(), nullptr) == 1;
}

}  // namespace

std::string contentHash(std::string_view bytes) {
  std::array<unsigned char, contentHashSize / 2> digest{};
  if (!digestInto(digest.data(), bytes)) throw std::runtime_error("the cryptographic library has no SHA-256");
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (const unsigned char byte : digest) {
    text += digits[byte >> 4];
    text += digits[byte & 15];
  }
  return text;
}

}  // namespace tarvo
