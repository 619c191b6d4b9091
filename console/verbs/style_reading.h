// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "console/verbs/command.h"
#include "dict/load_findings.h"
#include "platform/plist/property_list.h"
#include "platform/services/result.h"

namespace tarvo {

// The style file as a start would read it, for verbs that only read: the user's, else the one that came with the
// product. What is wrong has been told.
struct ReadStyles {
  std::optional<Dictionary> root;        // nothing: neither can be read
  ExitStatus status = ExitStatus::done;  // with which the verb ends once it has shown what there is
};
ReadStyles readStyles(Console& console);
// The user's alone; what a load will mend in them is told, that they cannot be read is not.
Result<Dictionary> readUsersStyles(Console& console);

// What a load mends in the user's styles, or would where a verb only reads.
struct Mended {
  NamesByDirection gone;              // (load_findings.h)
  std::vector<std::string> filledIn;  // options that got their defaults
};
// A line each, about the style file.
void noteMended(Console& console, const DiskPath& path, const Mended& mended);

// The user's file is not there: tells where earlier styles of the user's are, and how they come back.
void noteAbsentStyles(Console& console);

// For verbs that need no styles: tells when the user's file is there and cannot be read. Only reading all of it shows
// that.
void noteUnreadStyles(Console& console);

}  // namespace tarvo
