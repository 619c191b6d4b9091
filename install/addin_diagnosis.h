// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "install/addin_entry.h"
#include "platform/services/result.h"

namespace tarvo {

class Bundle;
class FileService;

// What can be said of one add-in by looking at the disk, before anything was tried. What a tick met is AddinTable's.
struct AddinDiagnosis {
  AddinKind kind = AddinKind::office;
  std::string name, version;
  AddinPlaces places;
  std::vector<std::string>
      missing;  // that should be there, on this disk: application, resource, folder, scripts left out
  std::optional<Failure> obstacle;         // why an install would fail now
  std::optional<Failure> removalObstacle;  // the same of a removal; nothing also when nothing is there
  std::vector<Failure> faults;             // of what is installed: in what it differs from the product's
  bool isMarked = false;                   // what the row says
  bool isThere = false;                    // what the disk says; what was known last where it cannot be looked at
  bool isPartial = false;                  // a script folder that lacks some of its scripts
  bool differs() const { return isMarked != isThere; }
};

// entry: a row, or a record with an absolute install folder. Changes nothing.
AddinDiagnosis diagnoseAddin(const AddinEntry& entry, const FileService& files, const Locations& locations,
                             const Bundle& bundle);
// Of the same entry: in what the macro or the scripts that lie in its install folder differ from the product's
// (installed_files.h); nothing where none are there. Changes nothing.
std::vector<Failure> faultsOf(const AddinEntry& entry, const FileService& files, const Locations& locations,
                              const Bundle& bundle);

}  // namespace tarvo
