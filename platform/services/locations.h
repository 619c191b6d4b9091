// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

// Where paths lie. The core spells the product's and the system's absolute paths as the platform knows them
// ("/Library/…"); with a product root they are meant below that folder, so that a whole installed product can live
// anywhere. Duty: turn the core's spelling into a real path and back. Not: touching the disk. Resolving twice changes
// nothing.
namespace tarvo {

class Locations {
 public:
  // root: an existing folder, absolute, or "/" for none. home: the user's home as a real path. Both without a trailing
  // slash.
  Locations(std::string root, std::string home);
  const std::string& root() const { return root_; }
  // The home in the core's spelling: without the root when it lies below it.
  const std::string& home() const { return home_; }
  // A path below the home.
  std::string inHome(const std::string& rest) const;

  // The real path. Paths below the root stay; so do those below a folder that was made known by leaveAsIs.
  std::string resolve(const std::string& path) const;
  // The core's spelling of a real path.
  std::string coreSpelling(const std::string& path) const;
  // Real paths at or below this one are used as they are: the home outside the root, resources, temporary folders.
  void leaveAsIs(const std::string& path);
  // The answer of a panel in the core's spelling; one outside the root is left as it is from now on.
  std::string picked(const std::string& path);
  // For people: "home:/…", "root:/…" (only with a root other than "/"), or the absolute path.
  std::string shown(const std::string& path) const;

 private:
  std::string root_, home_;
  std::vector<std::string> asTheyAre_;
};

}  // namespace tarvo
