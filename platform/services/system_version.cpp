// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/system_version.h"

#include <algorithm>
#include <limits>

#include "platform/services/locations.h"
#include "platform/services/plist_file.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

constexpr const char* systemVersionFile = "/System/Library/CoreServices/SystemVersion.plist";

double numberOf(const PropertyList& version) {
  if (const std::string* text = version.string()) return leadingNumber(*text);
  if (const Real* real = std::get_if<Real>(&version.value())) return leadingNumber(real->text);
  const Integer* integer = std::get_if<Integer>(&version.value());
  return integer != nullptr ? version.integerValue() : 0;
}

}  // namespace

int systemVersion(const FileService& files, const Locations& locations) {
  const DiskPath path = locations.onDisk(ProductPath(systemVersionFile));
  const Result<Dictionary> root = readDictionary(files, path);
  const PropertyList* version = root ? root->find("ProductVersion") : nullptr;
  if (version == nullptr) return 0;
  // In double, not wider: 10.6 times ten must round to 106.
  const double tenfold = numberOf(*version) * 10.0;
  constexpr double limit = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(tenfold, -limit, limit));
}

}  // namespace tarvo
