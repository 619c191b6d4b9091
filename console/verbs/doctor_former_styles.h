// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "console/verbs/finding.h"

namespace tarvo {

class Product;

// What the doctor finds of former styles: the folder of earlier ones, and what had to be kept beside the style file.
// Only reads.
std::vector<Finding> examineFormerStyles(Product& product);

}  // namespace tarvo
