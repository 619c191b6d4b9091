// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <string>
#include <string_view>
#include <utility>

#include "platform/text/text_rules.h"

// Paths of two kinds that look alike. The product's documents know "/Library/…" and the like, wherever the product is
// installed; the disk knows where that lies. locations.h alone turns one into the other.
namespace tarvo {

// A path as text: absolute, without a trailing slash; an empty one names nothing. Nothing here asks the disk.
template <class Kind>
class Path {
 public:
  Path() = default;
  explicit Path(std::string text) : text_(std::move(text)) {}

  const std::string& text() const { return text_; }
  bool empty() const { return text_.empty(); }
  std::string name() const { return lastPathComponent(text_); }
  Path folder() const { return Path(deletingLastPathComponent(text_)); }
  bool isIn(const Path& folder) const { return isBelow(text_, folder.text_); }  // or the folder itself
  Path operator/(std::string_view rest) const { return Path(joinPath(text_, rest)); }
  Path operator+(std::string_view ending) const { return Path(text_ + std::string(ending)); }

  friend bool operator==(const Path&, const Path&) = default;
  friend std::strong_ordering operator<=>(const Path&, const Path&) = default;

 private:
  std::string text_;
};

using ProductPath = Path<struct ProductSpelling>;  // as the product's documents spell it
using DiskPath = Path<struct DiskSpelling>;        // as this disk has it

}  // namespace tarvo
