// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "console/verbs/finding.h"

namespace tarvo {

class Product;

// What the doctor says of who may write where: the configuration that decides it for new folders, and each folder of
// the product, and each above one in the home, in which every user of the machine may make and remove things. That is
// no problem where people share a machine as they share their dictionaries. Only reads.
std::vector<Finding> examineFolders(Product& product);

}  // namespace tarvo
