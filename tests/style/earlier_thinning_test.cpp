// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/earlier_thinning.h"

#include <gtest/gtest.h>

#include <set>

namespace tarvo::test {
namespace {

using namespace std::chrono_literals;

constexpr Moment noon = std::chrono::sys_days(std::chrono::January / 31 / 2026) + 12h;

std::vector<SizedSet> every(std::chrono::microseconds step, int count, std::uint64_t size = 1) {
  std::vector<SizedSet> sets;
  for (int i = 0; i < count; ++i) {
    sets.push_back({{.id = std::to_string(i), .time = noon - i * step, .kind = ChangeKind::edit}, size});
  }
  return sets;
}

std::size_t left(const std::vector<SizedSet>& sets) { return sets.size() - superfluousSets(sets, noon).size(); }

TEST(Thinning, keepsEverythingOfADayUpToTwoHundred) {
  EXPECT_EQ(left(every(5min, 200)), 200U);
  EXPECT_EQ(left(every(500ms, 500)), 200U);
}

TEST(Thinning, keepsTheLastOfEachHourOfAWeekAndOfEachDayOfAYear) {
  const auto sets = every(20min, 3 * 24 * 800);
  const auto gone = superfluousSets(sets, noon);
  std::set<std::string> absent;
  for (const EarlierSet& set : gone) absent.insert(set.id);
  std::size_t ofTheWeek = 0, ofTheYear = 0, older = 0;
  for (const SizedSet& one : sets) {
    if (absent.contains(one.set.id)) continue;
    const auto age = noon - one.set.time;
    if (age <= 24h) continue;
    ++(age <= 7 * 24h ? ofTheWeek : age <= std::chrono::years(1) ? ofTheYear : older);
  }
  EXPECT_NEAR(static_cast<double>(ofTheWeek), 6 * 24, 1);
  EXPECT_NEAR(static_cast<double>(ofTheYear), 365 - 7, 2);
  EXPECT_EQ(older, 0U);
}

TEST(Thinning, keepsTheNewestOnesThatFitAndOneOfEachKind) {
  auto sets = every(1min, 10, std::uint64_t{100} << 20);
  sets[9].set.kind = ChangeKind::import;
  sets[9].set.time = noon - std::chrono::years(2);
  const auto gone = superfluousSets(sets, noon);
  ASSERT_EQ(gone.size(), 6U);
  EXPECT_EQ(gone.front().id, "3");
  EXPECT_EQ(gone.back().id, "8");
}

TEST(Thinning, aHugeSetThatStaysInAnyCaseTakesNoRoomFromTheOthers) {
  auto sets = every(1min, 12);
  sets[0].set.kind = ChangeKind::unreadable;
  sets[0].size = std::uint64_t{300} << 20;
  EXPECT_EQ(left(sets), 12U);
  sets[1].size = std::uint64_t{300} << 20;
  EXPECT_EQ(left(sets), 12U);
}

}  // namespace
}  // namespace tarvo::test
