// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tarvo {

// Rows of texts, each column as wide as its widest cell; East Asian wide characters take two places.
void writeTable(std::ostream& out, std::vector<std::vector<std::string>> rows);

}  // namespace tarvo
