// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/addin_name.h"

#include <algorithm>
#include <set>
#include <vector>

#include "install/addin_lists.h"
#include "platform/services/locations.h"

namespace tarvo {

namespace {

using namespace addin_keys;
using Rows = std::vector<const AddinEntry*>;

bool isRepeated(const AddinEntry& row, const AddinEntry& first, const std::string& name) {
  return addinText(row, appName) != name && addinText(row, appPath) == addinText(first, appPath) &&
         addinText(row, installFolderPath) == addinText(first, installFolderPath) &&
         addinItemName(row) == addinItemName(first);
}

bool isMeant(const AddinEntry& row, const AddinLists& lists, const Locations& locations, const AddinName& name) {
  if (!name.version.empty() && addinText(row, appVersion) != name.version) return false;
  const DiskPath path = lists.placesOf(row).application;
  return name.name == addinText(row, appName) || name.name == addinText(row, appPath) || name.name == path.text() ||
         name.name == locations.shown(path);
}

// What tells the rows apart: their versions, else the paths of their applications.
UsageError severalMeant(const Rows& rows, const AddinLists& lists, const AddinName& name) {
  std::set<std::string> versions, paths;
  for (const AddinEntry* row : rows) {
    versions.insert(addinText(*row, appVersion));
    paths.insert(lists.placesOf(*row).application.text());
  }
  if (name.version.empty() && versions.size() == rows.size()) {
    return {UsageError::Kind::missing, "VERSION", {versions.begin(), versions.end()}, "", ""};
  }
  return {UsageError::Kind::ambiguous, name.name, {paths.begin(), paths.end()}, "", "NAME"};
}

}  // namespace

std::expected<AddinPlace, Problem> addinNamed(const AddinLists& lists, const Locations& locations,
                                              const AddinName& name) {
  Rows meant;
  AddinPlace place;  // of the first
  for (const AddinKindRow& each : addinKindRows) {
    const std::vector<AddinEntry>& rows = lists.rowsOf(each.kind);
    for (std::size_t i = 0; i < rows.size(); ++i) {
      if (!isMeant(rows[i], lists, locations, name)) continue;
      if (!meant.empty() && isRepeated(rows[i], *meant.front(), name.name)) continue;
      if (meant.empty()) place = {each.kind, static_cast<int>(i)};
      meant.push_back(&rows[i]);
    }
  }
  if (meant.size() == 1) return place;
  if (!meant.empty()) return std::unexpected(severalMeant(meant, lists, name));
  const std::string words = name.version.empty() ? name.name : name.name + " " + name.version;
  return std::unexpected(Refusal{words, "Refusal.NoAddin", ""});
}

}  // namespace tarvo
