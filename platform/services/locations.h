// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "platform/text/paths.h"

// Where the product lies. With a root its paths are meant below that folder, so that a whole installed product can live
// anywhere. Duty: turn a path of the product into one of this disk and back. Not: touching the disk.
namespace tarvo {

class Locations {
 public:
  // root: an existing folder, or "/" for none. home: the user's; it may lie outside the root.
  Locations(std::string root, std::string home);
  const DiskPath& root() const { return root_; }
  const DiskPath& home() const { return home_; }
  // A path below the home.
  DiskPath inHome(std::string_view rest) const { return home_ / rest; }

  // A path that lies below the root, or in a home outside it, stays.
  DiskPath onDisk(const ProductPath& path) const;
  // Without the root; a path outside it stays.
  ProductPath inProduct(const DiskPath& path) const;
  // For people: "home:/…", "root:/…" (only with a root other than "/"), or the absolute path.
  std::string shown(const DiskPath& path) const;

 private:
  DiskPath root_, home_;
};

class FileService;

// A path that an earlier run stored: one of the product, or that of an application which the user picked outside the
// root. What lies below the root comes first; where that is known to hold nothing, and the path itself is not known to,
// that is meant: a disk that is away for the moment keeps what was picked on it.
DiskPath storedPath(const std::string& text, const Locations& locations, const FileService& files);

}  // namespace tarvo
