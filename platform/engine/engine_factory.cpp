// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_factory.h"

#include "platform/engine/engine_http.h"
#include "platform/engine/engine_local.h"
#include "platform/engine/engine_none.h"
#include "platform/engine/http_address.h"

namespace tarvo {
namespace {

bool isUnreserved(unsigned char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' || c == '.' ||
         c == '_' || c == '~';
}

std::string percentEncoded(std::string_view text) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string encoded;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (isUnreserved(byte)) {
      encoded += c;
    } else {
      (encoded += '%') += {digits[byte >> 4], digits[byte & 15]};
    }
  }
  return encoded;
}

}  // namespace

std::string addressForUser(std::string_view address, std::string_view user) {
  constexpr std::string_view place = "{user}";
  const std::string name = percentEncoded(user);
  std::string filled;
  for (std::size_t at = address.find(place); at != std::string_view::npos; at = address.find(place)) {
    filled.append(address.substr(0, at)).append(name);
    address.remove_prefix(at + place.size());
  }
  return filled.append(address);
}

bool namesEngine(std::string_view engineURL) {
  return engineURL.empty() || engineURL == "none" || isHttpAddress(engineURL);
}

std::unique_ptr<Engine> makeEngine(const std::string& engineURL, FileService& files, FileService& disk,
                                   const EnginePlaces& places) {
  if (engineURL == "none") return std::make_unique<EngineNone>();
  if (engineURL.empty()) return std::make_unique<EngineLocal>(files, places.localPath);
  if (isHttpAddress(engineURL)) {
    return std::make_unique<EngineHttp>(
        HttpPlace{engineURL, places.netrc, places.authorities, places.allowsPlainPasswords}, disk, places.basePath);
  }
  return nullptr;
}

}  // namespace tarvo
