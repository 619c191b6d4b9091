// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "install/addin_entry.h"

// The applications that take add-ins for verbs that only read: nothing is made, not even Apple Mail's script folder.
namespace tarvo {

class Product;

struct AddinsRead {
  std::vector<AddinEntry> candidates;    // every record that a start would look at
  std::vector<AddinEntry> forgotten;     // shipped records that it would not, though their applications are there
  std::vector<AddinEntry> office, mail;  // the rows that it would show
};

// Nothing when there is neither a remembered nor a shipped list: a start would end at once.
std::optional<AddinsRead> readAddins(Product& product);

}  // namespace tarvo
