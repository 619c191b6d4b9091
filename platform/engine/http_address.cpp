// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/http_address.h"

#include <arpa/inet.h>
#include <netinet/in.h>

#include <algorithm>
#include <string>

namespace tarvo {
namespace {

// Scheme and host, with its port, of an address; both in lower case, and empty for what is none.
struct AddressFront {
  std::string scheme, host;
};
AddressFront frontOf(std::string_view address) {
  const std::size_t schemeEnd = address.find("://");
  if (schemeEnd == std::string_view::npos) return {};
  const std::string_view rest = address.substr(schemeEnd + 3);
  return {lowerCaseASCII(address.substr(0, schemeEnd)), lowerCaseASCII(rest.substr(0, rest.find_first_of("/?#")))};
}

}  // namespace

std::string lowerCaseASCII(std::string_view text) {
  std::string low(text);
  for (char& c : low) c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return low;
}

bool isHttpAddress(std::string_view address) {
  const auto [scheme, host] = frontOf(address);
  const bool isPlain = std::none_of(address.begin(), address.end(), [](unsigned char c) { return c <= ' '; });
  return (scheme == "http" || scheme == "https") && !host.empty() && host.find('@') == std::string_view::npos &&
         isPlain;
}

bool isEncryptedAddress(std::string_view address) {
  return isHttpAddress(address) && frontOf(address).scheme == "https";
}

bool isLoopbackAddress(std::string_view address) {
  if (!isHttpAddress(address)) return false;
  std::string host = frontOf(address).host;
  const std::size_t colon = host.find_last_not_of("0123456789");
  if (colon != std::string::npos && host[colon] == ':' && colon + 1 < host.size()) host.resize(colon);
  in_addr number{};
  const bool isNumber = inet_pton(AF_INET, host.c_str(), &number) == 1;
  return host == "localhost" || host == "[::1]" || (isNumber && (ntohl(number.s_addr) >> 24) == IN_LOOPBACKNET);
}

}  // namespace tarvo
