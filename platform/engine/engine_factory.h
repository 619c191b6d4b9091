// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <string>

#include "platform/engine.h"

namespace tarvo {

class FileService;

// The engine that a configured address stands for: "none" is none, "" the local one, whose file lies at localPath.
// Null for an address that nothing here serves.
std::unique_ptr<Engine> makeEngine(const std::string& engineURL, FileService& files, const std::string& localPath);

}  // namespace tarvo
