// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/earlier_thinning.h"

#include <optional>
#include <set>

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

}  // namespace tarvo
