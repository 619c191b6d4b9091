// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/earlier_thinning.h"

#include <algorithm>
#include <optional>
#include <set>

#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"
#include "platform/text/fingerprint.h"

namespace tarvo {

namespace {

using namespace std::chrono;

constexpr std::size_t mostOfADay = 200;
constexpr std::uint64_t mostBytes = std::uint64_t{256} << 20;

// Which of the steps of time a set belongs to, of which one is kept; nothing: it is too old.
std::optional<std::pair<int, std::int64_t>> stepOf(Moment time, Moment now) {
  const auto age = now - time;
  if (age <= days(7)) return std::pair(1, duration_cast<hours>(time.time_since_epoch()).count());
  if (age <= years(1)) return std::pair(2, duration_cast<days>(time.time_since_epoch()).count());
  return std::nullopt;
}

class Thinning {
 public:
  explicit Thinning(Moment now) : now_(now) {}

  // Asked from the newest set to the oldest one.
  bool keeps(const SizedSet& one) {
    const bool isOfToday = now_ - one.set.time <= days(1);
    const bool isNewest = kinds_.insert(one.set.kind).second;
    const bool isWanted = (isOfToday && ofToday_ < mostOfADay) || isLastOfItsStep(one.set);
    const bool fits = isWanted && bytes_ + one.size <= mostBytes;
    if (!isNewest && !fits) return false;
    if (isOfToday) ++ofToday_;
    if (const auto step = stepOf(one.set.time, now_)) steps_.insert(*step);
    // What stays in any case takes no room from the others: a single huge file would push all of them out.
    if (!isNewest) bytes_ += one.size;
    return true;
  }

 private:
  bool isLastOfItsStep(const EarlierSet& set) const {
    const auto step = stepOf(set.time, now_);
    return step && !steps_.contains(*step);
  }

  Moment now_;
  std::set<ChangeKind> kinds_;
  std::set<std::pair<int, std::int64_t>> steps_;
  std::size_t ofToday_ = 0;
  std::uint64_t bytes_ = 0;
};

}  // namespace

std::vector<EarlierSet> superfluousSets(const std::vector<SizedSet>& sets, Moment now) {
  Thinning thinning(now);
  std::vector<EarlierSet> superfluous;
  for (const SizedSet& one : sets) {
    if (!thinning.keeps(one)) superfluous.push_back(one.set);
  }
  return superfluous;
}

// What cannot be read, or not be given its name, is tried again the next time.
void EarlierStyles::identify(EarlierSet& set) {
  const Result<std::string> bytes = readListFile(files_, set.path);
  if (!bytes) return;
  std::string found = fingerprint(*bytes);
  const DiskPath named = folder_ / fileNameOf(set.time, set.kind, found);
  if (!files_.move(set.path, named)) return;
  set.fingerprint = std::move(found);
  set.path = named;
}

void EarlierStyles::thin() {
  Result<std::vector<EarlierSet>> listed = list();
  if (!listed) return;
  std::vector<SizedSet> sets;
  std::map<std::string, std::size_t> places;  // by fingerprint
  for (EarlierSet& set : *listed) {
    if (set.fingerprint.empty()) identify(set);
    const auto [newer, isNew] = places.try_emplace(set.fingerprint, sets.size());
    if (!isNew && !set.fingerprint.empty()) {
      EarlierSet& kept = sets[newer->second].set;
      kept = keepOnce(kept, set);
      continue;
    }
    const Result<FileStamp> stamp = files_.stamp(set.path);
    sets.push_back({std::move(set), stamp ? stamp->size : 0});
  }
  for (const EarlierSet& set : superfluousSets(sets, clock_())) {
    static_cast<void>(files_.remove(set.path));  // what cannot be removed is asked about again
  }
  known_.reset();
}

}  // namespace tarvo
