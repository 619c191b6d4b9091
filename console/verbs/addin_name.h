// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <expected>
#include <string>

#include "console/verbs/refusal.h"
#include "install/addin_edits.h"

// How the command line names an add-in.
namespace tarvo {

class AddinLists;
class Locations;

struct AddinName {
  std::string name;     // of the application, whole; or its path: as listed, as remembered, or on the disk
  std::string version;  // "" where the name alone says which one
};

// The row that is meant. None is refused; several are a usage error that names what tells them apart. A search may add
// an application twice: named by its path, it makes no difference which of the rows is meant.
std::expected<AddinPlace, Problem> addinNamed(const AddinLists& lists, const Locations& locations,
                                              const AddinName& name);

}  // namespace tarvo
