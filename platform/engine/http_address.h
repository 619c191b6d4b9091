// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// What an address of a style service says by itself. Nothing is looked up.
namespace tarvo {

// As schemes, hosts and names of headers are compared: letters outside ASCII are none of theirs.
std::string lowerCaseASCII(std::string_view text);
// Whether it begins with http:// or https://, has a host, and names neither a user nor a password.
bool isHttpAddress(std::string_view address);
// Whether what goes to such an address is encrypted.
bool isEncryptedAddress(std::string_view address);
// Whether such an address names this machine by its loopback address or as "localhost".
bool isLoopbackAddress(std::string_view address);

}  // namespace tarvo
