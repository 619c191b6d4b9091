// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "console/verbs/finding.h"

namespace tarvo {

class Product;

// What the doctor says of the applications that take add-ins: where each is, where its macro or scripts go, why an
// install would fail, and where the remembered state of its box is not that of the disk. Only reads.
std::vector<Finding> examineAddins(Product& product);

}  // namespace tarvo
