// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace tarvo {

// Which file stands at each path below a folder; a replaced file is another one.
using FileIdentities = std::map<std::string, std::uint64_t>;

FileIdentities fileIdentities(const std::string& folder);
// Paths of now that are new or hold another file than before, ascending.
std::vector<std::string> changedFiles(const FileIdentities& before, const FileIdentities& now);

}  // namespace tarvo
