// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_local.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <limits>
#include <string_view>
#include <utility>

#include "platform/plist/plist_findings.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "platform/text/text_rules.h"

namespace tarvo {
namespace {

constexpr std::string_view styleKey = "Style", stampKey = "Stamp";
constexpr std::size_t counterWidth = 20;
constexpr std::uint64_t lastCounter = std::numeric_limits<std::uint64_t>::max();
constexpr std::string_view timeShape = " 0000-00-00T00:00:00Z";

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool hasTimeShape(std::string_view text) {
  return std::equal(text.begin(), text.end(), timeShape.begin(), timeShape.end(),
                    [](char c, char shape) { return shape == '0' ? isDigit(c) : c == shape; });
}

std::uint64_t counterOf(std::string_view stamp) {
  if (stamp.size() < counterWidth || !hasTimeShape(stamp.substr(counterWidth))) return 0;
  std::uint64_t counter = 0;
  const char* end = stamp.data() + counterWidth;
  const auto [stop, error] = std::from_chars(stamp.data(), end, counter);
  return error == std::errc() && stop == end ? counter : 0;
}

std::string makeStamp(std::uint64_t counter) {
  using namespace std::chrono;
  const auto now = floor<seconds>(system_clock::now());
  const auto day = floor<days>(now);
  const year_month_day date(day);
  const hh_mm_ss time(now - day);
  std::array<char, 64> text{};
  const int size = std::snprintf(text.data(), text.size(), "%020llu %04d-%02u-%02uT%02d:%02d:%02dZ",
                                 static_cast<unsigned long long>(counter), int(date.year()), unsigned(date.month()),
                                 unsigned(date.day()), int(time.hours().count()), int(time.minutes().count()),
                                 int(time.seconds().count()));
  return std::string(text.data(), static_cast<std::size_t>(size));
}

// The whole file, with the records as they are.
std::string encode(const StyleSet& styles, const std::string& stamp) {
  std::size_t size = 1024;
  for (const std::string& record : styles.encoded) size += record.size();
  std::string out;
  out.reserve(size);
  out += plistHead;
  out += "<dict>\n";
  appendKey(out, stampKey, 1);
  appendValue(out, PropertyList(stamp), 1);
  appendKey(out, styleKey, 1);
  appendEncodedArray(out, styles.encoded, 1);
  out += "</dict>\n";
  out += plistFoot;
  return out;
}

}  // namespace

EngineLocal::EngineLocal(FileService& files, DiskPath path) : files_(files), file_(files, std::move(path)) {}

bool EngineLocal::checkConnectionWithCurl() { return true; }

// A file that cannot be read may hold a set.
bool EngineLocal::keepsItsSet() {
  if (!standsIn_) return false;
  const Result<Dictionary> set = readSet();
  return set ? set->array(styleKey) != nullptr : !isAbsence(set.error());
}

void EngineLocal::sendRegistStyle(const StyleSet& styles, std::string& updateString) {
  if (keepsItsSet()) {
    updateString = makeStamp(counter_.value_or(lastCounter));  // so that it does not count as newer
    didRegister_ = Failure{file_.path().text(), Attempt::store, std::make_error_code(std::errc::file_exists)};
    return;
  }
  if (!counter_) {
    const Result<Dictionary> held = readSet();
    (void)held;  // what is there is replaced; a set that cannot be read is kept beside it
  }
  const std::uint64_t last = counter_.value_or(0);
  const std::uint64_t next = last == lastCounter ? 1 : last + 1;
  updateString = makeStamp(next);
  const Result<> made = files_.makeFolder(file_.path().folder());
  // After a failed write the caller's set is newer than what the file holds, and its stamp says so: the old set must
  // not come back over it, whatever counter it has.
  didRegister_ = file_.write(encode(styles, updateString));
  if (!didRegister_ && !counter_) updateString = makeStamp(lastCounter);
  if (didRegister_) counter_ = next;
  if (!didRegister_ && !made) didRegister_ = made;  // without its folder no file can be
}

bool EngineLocal::checkStyle() {
  const Result<Dictionary> set = readSet();
  // What the disk did not let read just now is not known to be none; a file that holds no set is.
  if (!set && !isAbsence(set.error()) && set.error().cause.category() != reasonCategory()) return true;
  return set && set->array(styleKey) != nullptr;
}

bool EngineLocal::requestStyle(Array& styles, std::string& localUpdate) {
  Result<Dictionary> set = readSet();
  couldRead_ = set ? Result<>() : Result<>(set.error());
  if (!set) return false;
  Array* held = set->array(styleKey);
  if (held == nullptr || counter_.value_or(0) <= counterOf(localUpdate)) return false;
  if (!unsoundDates(*held).empty()) {
    couldRead_ = Failure{file_.path().text(), Attempt::fetch, Reason::damaged};
    return false;
  }
  styles = std::move(*held);
  localUpdate = *set->string(stampKey);  // a counter above 0 comes from such a text
  return true;
}

Result<Dictionary> EngineLocal::readSet() {
  Result<Dictionary> set = file_.read();
  const std::string* stamp = set ? set->string(stampKey) : nullptr;
  counter_ = stamp != nullptr ? counterOf(*stamp) : 0;
  if (!set && !isAbsence(set.error())) counter_.reset();
  return set;
}

}  // namespace tarvo
