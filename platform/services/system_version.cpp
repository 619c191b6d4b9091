// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/services/system_version.h"

#include <algorithm>
#include <limits>

#include "platform/plist/plist_reader.h"
#include "platform/services/file_service.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

constexpr const char* systemVersionFile = "/System/Library/CoreServices/SystemVersion.plist";

}  // namespace

int systemVersion(const FileService& files) {
  const auto bytes = files.read(systemVersionFile);
  const auto list = bytes ? readPropertyList(*bytes) : std::nullopt;
  const Dictionary* root = list ? list->dictionary() : nullptr;
  const std::string* version = root != nullptr ? root->string("ProductVersion") : nullptr;
  if (version == nullptr) return 0;
  // In double, not wider: 10.6 times ten must round to 106.
  const double tenfold = leadingNumber(*version) * 10.0;
  constexpr double limit = std::numeric_limits<int>::max();
  return static_cast<int>(std::clamp(tenfold, -limit, limit));
}

}  // namespace tarvo
