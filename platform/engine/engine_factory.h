// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/services/engine.h"
#include "platform/text/paths.h"

namespace tarvo {

class FileService;

struct EnginePlaces {
  DiskPath localPath;                 // of the local engine's file
  DiskPath basePath;                  // what the home shares with its style service (shared_base.h)
  DiskPath netrc;                     // the user's credentials for style services
  DiskPath authorities;               // PEM file of the certificates to trust; empty for the system's
  bool allowsPlainPasswords = false;  // they may go out without encryption
};

// The address of one user, from one that is configured for many machines: each "{user}" in it stands for the user's
// name, percent-encoded but for letters, digits and "-._~" (RFC 6570, simple expansion).
std::string addressForUser(std::string_view address, std::string_view user);

// Whether an address stands for an engine.
bool namesEngine(std::string_view engineURL);

// The engine that an address stands for: "none" is none, "" the local one, http://… and https://… the resource of this
// user on a style service (isHttpAddress). Null for an address that nothing here serves.
// files: of the local one. disk: of one that works on a thread of its own.
std::unique_ptr<Engine> makeEngine(const std::string& engineURL, FileService& files, FileService& disk,
                                   const EnginePlaces& places);

}  // namespace tarvo
