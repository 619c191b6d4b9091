// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/plist/plist_numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <limits>
#include <system_error>
#include <utility>

namespace tarvo {
namespace {

bool takePrefix(std::string_view& text, std::string_view prefix) {
  const bool there = text.starts_with(prefix);
  if (there) text.remove_prefix(prefix.size());
  return there;
}

// Whether it is negative.
bool takeSign(std::string_view& text) {
  if (takePrefix(text, "-")) return true;
  takePrefix(text, "+");
  return false;
}

void skipSpace(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(" \t\r\n"), text.size())); }

bool beginsWithSign(std::string_view text) { return text.starts_with('-') || text.starts_with('+'); }

// What a number that no double can hold comes to: too small to be told from zero, or too large.
double beyondRange(std::string_view digits) {
  const std::size_t exponent = digits.find_first_of("eE");
  const bool small = exponent == std::string_view::npos ? digits.find_first_not_of('0') == digits.find('.')
                                                        : digits.substr(exponent + 1).starts_with('-');
  return small ? 0 : std::numeric_limits<double>::infinity();
}

struct Day {
  std::int64_t year;
  int month, day;
};

constexpr std::int64_t floorDivide(std::int64_t a, std::int64_t b) { return a / b - (a % b < 0 ? 1 : 0); }

// Years are counted from March, so that the leap day is the last one of a year, and in cycles of 400 years.
Day dayFromNumber(std::int64_t daysSince2001) {
  constexpr std::int64_t cycle = 146097, firstOfMarch2000To2001 = 306;
  const std::int64_t days = daysSince2001 + firstOfMarch2000To2001;
  const std::int64_t cycles = floorDivide(days, cycle), inCycle = days - cycles * cycle;
  const std::int64_t years = (inCycle - inCycle / 1460 + inCycle / 36524 - inCycle / 146096) / 365;
  const auto inYear = static_cast<int>(inCycle - (365 * years + years / 4 - years / 100));
  const int month = (5 * inYear + 2) / 153;  // 0 is March; months of 30.6 days
  const int day = inYear - (153 * month + 2) / 5 + 1;
  return {2000 + cycles * 400 + years + (month >= 10 ? 1 : 0), month < 10 ? month + 3 : month - 9, day};
}

void appendPadded(std::string& out, std::int64_t number, std::size_t width) {
  const std::string digits = std::to_string(number);
  if (digits.size() < width) out.append(width - digits.size(), '0');
  out += digits;
}

}  // namespace

std::optional<Integer> integerFromText(std::string_view text) {
  Integer integer;
  const std::size_t size = text.size();
  integer.negative = takeSign(text);
  if (text.size() < size) skipSpace(text);
  const int base = takePrefix(text, "0x") || takePrefix(text, "0X") ? 16 : 10;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, integer.magnitude, base);
  if (result.ec != std::errc{} || result.ptr != end) return std::nullopt;
  if (integer.magnitude == 0) integer.negative = false;
  return integer;
}

Integer integerFromBits(std::uint64_t bits) {
  const bool negative = (bits >> 63) != 0;
  return {negative ? ~bits + 1 : bits, negative};
}

std::optional<double> realFromText(std::string_view text) {
  const bool negative = takeSign(text);
  if (beginsWithSign(text)) return std::nullopt;
  double value = 0;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  if (result.ec == std::errc::invalid_argument || result.ptr != end) return std::nullopt;
  if (result.ec == std::errc::result_out_of_range) value = beyondRange(text);
  return negative ? -value : value;
}

std::string textFromReal(double value) {
  if (std::isnan(value)) return "nan";
  if (std::isinf(value)) return value < 0 ? "-infinity" : "+infinity";
  if (value == 0) return std::signbit(value) ? "-0.0" : "0.0";
  std::array<char, 32> buffer;
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
  return {buffer.data(), result.ptr};
}

std::optional<std::string> textFromDate(double seconds) {
  constexpr double farthest = 1e15;
  constexpr std::int64_t secondsPerDay = 86400;
  if (!(std::fabs(seconds) <= farthest)) return std::nullopt;
  const auto whole = static_cast<std::int64_t>(std::floor(seconds));
  const std::int64_t days = floorDivide(whole, secondsPerDay), inDay = whole - days * secondsPerDay;
  const Day day = dayFromNumber(days);
  std::string out = day.year < 0 ? "-" : "";
  appendPadded(out, day.year < 0 ? -day.year : day.year, 4);
  const std::array<std::pair<char, std::int64_t>, 5> parts{
      {{'-', day.month}, {'-', day.day}, {'T', inDay / 3600}, {':', inDay / 60 % 60}, {':', inDay % 60}}};
  for (const auto& [separator, number] : parts) {
    out += separator;
    appendPadded(out, number, 2);
  }
  out += 'Z';
  return out;
}

bool isSoundDate(std::string_view text) {
  constexpr std::string_view whole = "0000-00-00T00:00:00";
  constexpr std::array<std::size_t, 4> ends{10, 13, 16, 19};  // behind the day, the hour, the minute, the second
  if (!text.ends_with('Z') || std::ranges::find(ends, text.size() - 1) == ends.end()) return false;
  text.remove_suffix(1);
  const auto fits = [](char c, char form) { return form == '0' ? c >= '0' && c <= '9' : c == form; };
  if (!std::equal(text.begin(), text.end(), whole.begin(), fits)) return false;
  const auto number = [&text](std::size_t at, std::size_t width) {
    unsigned value = 0;
    for (const char digit : text.substr(std::min(at, text.size()), width))
      value = value * 10 + static_cast<unsigned>(digit - '0');
    return value;
  };
  const std::chrono::year year(static_cast<int>(number(0, 4)));
  const std::chrono::year_month_day day(year, std::chrono::month(number(5, 2)), std::chrono::day(number(8, 2)));
  return year > std::chrono::year(0) && day.ok() && number(11, 2) < 24 && number(14, 2) < 60 && number(17, 2) < 60;
}

}  // namespace tarvo
