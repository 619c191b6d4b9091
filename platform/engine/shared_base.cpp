// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/shared_base.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string_view>
#include <utility>

#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"

namespace tarvo {

namespace {

constexpr std::string_view heading = "Tarvo shared styles 1";
constexpr std::size_t mostEntries = 9;  // each a whole set; the oldest promises go first
const std::string kept = "kept", promised = "promised";

StylePayload encode(const Array& styles) {
  std::vector<std::string> encoded(styles.size());
  for (std::size_t i = 0; i < styles.size(); ++i) appendValue(encoded[i], styles[i], 2);
  return StylePayload(StyleSet{styles, encoded});
}

std::optional<std::string_view> takeLine(std::string_view& bytes) {
  const std::size_t end = bytes.find('\n');
  if (end == std::string_view::npos) return std::nullopt;
  const std::string_view line = bytes.substr(0, end);
  bytes.remove_prefix(end + 1);
  return line;
}

std::optional<std::size_t> sizeIn(std::string_view digits) {
  std::size_t size = 0;
  const auto [stop, error] = std::from_chars(digits.data(), digits.data() + digits.size(), size);
  return error == std::errc() && stop == digits.data() + digits.size() ? std::optional(size) : std::nullopt;
}

}  // namespace

EncodedSet::EncodedSet(Array records) : styles(std::move(records)), payload(encode(styles)) {}

BaseFile::BaseFile(FileService& files, DiskPath path, std::string address)
    : files_(files), path_(std::move(path)), address_(std::move(address)), entries_(read()) {}

std::vector<BaseFile::Entry> BaseFile::read() const {
  if (path_.empty()) return {};
  const Result<std::string> file = files_.read(path_);
  if (!file) return {};
  std::string_view rest = *file;
  if (takeLine(rest) != heading || takeLine(rest) != address_) return {};
  std::vector<Entry> entries;
  std::vector<std::size_t> sizes;
  for (auto line = takeLine(rest); line && !line->empty(); line = takeLine(rest)) {
    const std::size_t first = line->find(' '), last = line->rfind(' ');
    const auto size = last != std::string_view::npos ? sizeIn(line->substr(last + 1)) : std::nullopt;
    if (!size || first == last) return {};
    entries.push_back(
        {std::string(line->substr(0, first)), SetStamp::parse(line->substr(first + 1, last - first - 1)), {}});
    sizes.push_back(*size);
  }
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (sizes[i] > rest.size() || entries[i].shown.revision == 0) return {};
    entries[i].payload = rest.substr(0, sizes[i]);
    rest.remove_prefix(sizes[i]);
  }
  return rest.empty() ? entries : std::vector<Entry>();
}

// Of the entry; the number of entries where none holds.
std::size_t BaseFile::placeHolding(const SetStamp& shown) const {
  std::size_t place = entries_.size();
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    if (entries_[i].word == kept || entries_[i].shown == shown) place = i;
  }
  return place;
}

std::optional<SharedBase> BaseFile::holding(const SetStamp& shown) const {
  const std::size_t place = placeHolding(shown);
  if (place == entries_.size()) return std::nullopt;
  std::optional<ReadPayload> set = readPayload(entries_[place].payload);
  if (!set) return std::nullopt;
  return SharedBase{entries_[place].shown, EncodedSet(std::move(set->styles))};
}

std::vector<Array> BaseFile::promisedSince(const SetStamp& shown) const {
  std::vector<Array> sets;
  const std::size_t place = placeHolding(shown);
  for (std::size_t i = place == entries_.size() ? 0 : place + 1; i < entries_.size(); ++i) {
    if (std::optional<ReadPayload> set = readPayload(entries_[i].payload)) sets.push_back(std::move(set->styles));
  }
  return sets;
}

Result<> BaseFile::keep(const SharedBase& base) {
  Entry entry{kept, base.shown, base.set.payload.bytes(base.shown.revision)};
  const bool isKept = entries_.size() == 1 && entries_.front() == entry;
  return isKept ? Result<>() : write({std::move(entry)});
}

Result<> BaseFile::promise(const SharedBase& next) {
  std::vector<Entry> entries = entries_;
  entries.push_back({promised, next.shown, next.set.payload.bytes(next.shown.revision)});
  if (entries.size() > mostEntries) entries.erase(entries.begin() + (entries.front().word == kept ? 1 : 0));
  return write(std::move(entries));
}

Result<> BaseFile::write(std::vector<Entry> entries) {
  entries_ = std::move(entries);  // this run knows it, whatever becomes of the file
  if (path_.empty()) return {};
  std::string bytes = std::string(heading) + '\n' + address_ + '\n';
  for (const Entry& entry : entries_) {
    bytes.append(entry.word)
        .append(" ")
        .append(entry.shown.text())
        .append(" ")
        .append(std::to_string(entry.payload.size()))
        .append("\n");
  }
  bytes += '\n';
  for (const Entry& entry : entries_) bytes += entry.payload;
  if (const Result<> made = files_.makeFolder(path_.folder()); !made) return made;
  return files_.writePrivate(path_, bytes);
}

}  // namespace tarvo
