// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <utility>

#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"
#include "platform/text/fingerprint.h"
#include "style/earlier_styles.h"
#include "style/earlier_thinning.h"

// What is done for the earlier sets between the edits.
namespace tarvo {

// What cannot be read, or not be given its name, is tried again the next time.
bool EarlierStyles::identify(EarlierSet& set) {
  const Result<std::string> bytes = readListFile(files_, set.path);
  if (!bytes) return false;
  std::string found = fingerprint(*bytes);
  const DiskPath named = folder_ / fileNameOf(set.time, set.kind, found);
  if (!files_.move(set.path, named)) return false;
  set.fingerprint = std::move(found);
  set.path = named;
  return true;
}

void EarlierStyles::thin() {
  Result<std::vector<EarlierSet>> listed = list();
  if (!listed) return;
  std::vector<SizedSet> sets;
  bool isNamed = false;
  std::map<std::string, std::size_t> places;  // by fingerprint
  for (EarlierSet& set : *listed) {
    if (set.fingerprint.empty()) isNamed = identify(set) || isNamed;
    const auto [newer, isNew] = places.try_emplace(set.fingerprint, sets.size());
    if (!isNew && !set.fingerprint.empty()) {
      EarlierSet& kept = sets[newer->second].set;
      kept = keepOnce(kept, set);
      continue;
    }
    const Result<FileStamp> stamp = files_.stamp(set.path);
    sets.push_back({std::move(set), stamp ? stamp->size : 0});
  }
  if (isNamed) static_cast<void>(files_.sync(folder_));  // after a power cut it may have to be named again
  for (const EarlierSet& set : superfluousSets(sets, clock_())) {
    static_cast<void>(files_.remove(set.path));  // what cannot be removed is asked about again
  }
  known_.reset();
}

}  // namespace tarvo
