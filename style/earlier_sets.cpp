// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <ctime>

#include "style/earlier_styles.h"

namespace tarvo {

namespace {

constexpr std::array<std::string_view, 8> kindNames{"repair", "edit", "import", "restore",
                                                    "merge",  "pull", "other",  "unreadable"};
static_assert(kindNames.size() == static_cast<std::size_t>(lastChangeKind) + 1);
constexpr std::string_view pattern = "00000000T000000.000000Z";
constexpr std::string_view ending = ".plist";
constexpr std::string_view unknown = "-";
constexpr std::size_t fingerprintSize = 32;

std::string textOf(Moment time) {
  const auto day = std::chrono::floor<std::chrono::days>(time);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss clock(time - day);
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d%02u%02uT%02d%02d%02d.%06dZ", static_cast<int>(date.year()),
                static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                static_cast<int>(clock.hours().count()), static_cast<int>(clock.minutes().count()),
                static_cast<int>(clock.seconds().count()), static_cast<int>(clock.subseconds().count()));
  return text.data();
}

int numberIn(std::string_view text, std::size_t from, std::size_t digits) {
  int number = 0;
  std::from_chars(text.data() + from, text.data() + from + digits, number);
  return number;
}

std::optional<Moment> timeOf(std::string_view text) {
  const auto fits = [](char one, char wanted) { return wanted == '0' ? one >= '0' && one <= '9' : one == wanted; };
  if (!std::ranges::equal(text, pattern, fits)) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(numberIn(text, 0, 4)),
                                         std::chrono::month(static_cast<unsigned>(numberIn(text, 4, 2))),
                                         std::chrono::day(static_cast<unsigned>(numberIn(text, 6, 2)))};
  const int hours = numberIn(text, 9, 2), minutes = numberIn(text, 11, 2), seconds = numberIn(text, 13, 2);
  if (!date.ok() || hours > 23 || minutes > 59 || seconds > 59) return std::nullopt;
  return std::chrono::sys_days(date) + std::chrono::hours(hours) + std::chrono::minutes(minutes) +
         std::chrono::seconds(seconds) + std::chrono::microseconds(numberIn(text, 16, 6));
}

bool isFingerprint(std::string_view text) {
  return text.size() == fingerprintSize && text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

}  // namespace

std::string_view nameOf(ChangeKind kind) { return kindNames[static_cast<std::size_t>(kind)]; }

std::string isoText(Moment time) {
  const std::string text = textOf(time);
  return text.substr(0, 4) + '-' + text.substr(4, 2) + '-' + text.substr(6, 5) + ':' + text.substr(11, 2) + ':' +
         text.substr(13, 2) + 'Z';
}

std::string localText(Moment time) {
  const std::time_t seconds = std::chrono::system_clock::to_time_t(std::chrono::floor<std::chrono::seconds>(time));
  std::array<char, 32> text{};
  const std::tm* local = std::localtime(&seconds);
  if (local == nullptr || std::strftime(text.data(), text.size(), "%F %T", local) == 0) return isoText(time);
  return text.data();
}

std::string fileNameOf(Moment time, ChangeKind kind, const std::string& fingerprint) {
  const std::string mark = fingerprint.empty() ? std::string(unknown) : fingerprint;
  return textOf(time) + " " + std::string(nameOf(kind)) + " " + mark + std::string(ending);
}

std::optional<EarlierSet> earlierSetNamed(const std::string& fileName) {
  if (!fileName.ends_with(ending)) return std::nullopt;
  const std::string_view stem = std::string_view(fileName).substr(0, fileName.size() - ending.size());
  const std::size_t first = stem.find(' '), second = stem.find(' ', first + 1);
  if (first == std::string_view::npos || second == std::string_view::npos) return std::nullopt;
  const std::string_view mark = stem.substr(second + 1);
  const auto kind = std::ranges::find(kindNames, stem.substr(first + 1, second - first - 1));
  const std::optional<Moment> time = timeOf(stem.substr(0, first));
  const bool isOurs = time && kind != kindNames.end() && (mark == unknown || isFingerprint(mark));
  if (!isOurs) return std::nullopt;
  return EarlierSet{.id = std::string(stem.substr(0, first)),
                    .time = *time,
                    .kind = static_cast<ChangeKind>(kind - kindNames.begin()),
                    .fingerprint = mark == unknown ? std::string() : std::string(mark),
                    .path = {}};
}

}  // namespace tarvo
