// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/style_file.h"

#include <algorithm>
#include <utility>

#include "platform/plist/plist_reader.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/file_service.h"
#include "platform/services/patient_reading.h"
#include "platform/text/fingerprint.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {
// In the root's dictionary values stand at depth 1, the records inside "Style" at depth 2.
constexpr int valueDepth = 1;

}  // namespace

void StyleFile::recordChanged(std::size_t index) {
  if (index < encoded_.size()) encoded_[index].clear();
}

std::span<const std::string> StyleFile::encode(const Dictionary& root) {
  const Array* styles = root.array(keyNameStyle);
  encoded_.resize(styles != nullptr ? styles->size() : 0);
  if (styles == nullptr) return encoded_;
  for (std::size_t i = 0; i < encoded_.size(); ++i) {
    if (encoded_[i].empty()) appendValue(encoded_[i], (*styles)[i], valueDepth + 1);
  }
  return encoded_;
}

// As it stood before the reading: whoever replaces it meanwhile has another one there, whichever of them was read.
Result<Dictionary> StyleFile::readOnce(bool& isStill) {
  const auto stamped = [this] {
    const Result<FileStamp> stamp = files_.stamp(path());
    return stamp ? std::optional(*stamp) : std::nullopt;
  };
  std::string bytes;
  stamp_ = stamped();
  Result<Dictionary> root = file_.read(&bytes);
  isStill = stamp_ == stamped();
  fingerprint_ = bytes.empty() || !isStill ? std::string() : fingerprint(bytes);
  return root;
}

Result<Dictionary> StyleFile::read() {
  constexpr int readingsMore = 2;
  bool isStill = true;
  Result<Dictionary> root = readPatiently([&] { return readOnce(isStill); });
  for (int again = 0; again < readingsMore && !isStill; ++again) root = readOnce(isStill);
  return root;
}

StandingOfFile StyleFile::standing() const {
  if (!stamp_ && file_.isUnread()) return StandingOfFile::ours;  // nobody knows what was there
  const Result<FileStamp> now = files_.stamp(path());
  if (now) return stamp_ == *now ? StandingOfFile::ours : StandingOfFile::changed;
  return stamp_ && isAbsence(now.error()) ? StandingOfFile::gone : StandingOfFile::ours;
}

std::string StyleFile::bytesOf(const Dictionary& root) {
  const Array* styles = root.array(keyNameStyle);
  std::size_t size = 4096;
  for (const std::string& record : encode(root)) size += record.size();
  std::string bytes;
  bytes.reserve(size);
  bytes += plistHead;
  bytes += "<dict>\n";
  for (const auto& [key, value] : root.entries()) {
    appendKey(bytes, key, valueDepth);
    if (key == keyNameStyle && styles != nullptr) {
      appendEncodedArray(bytes, encoded_, valueDepth);
    } else {
      appendValue(bytes, value, valueDepth);
    }
  }
  bytes += "</dict>\n";
  bytes += plistFoot;
  return bytes;
}

Result<Replaced> StyleFile::replace(const std::string& bytes, std::optional<ChangeKind> change) {
  if (earlier_ == nullptr) return file_.replace(bytes, {});
  const bool isUnread = file_.isUnread();
  if (isUnread) change = ChangeKind::unreadable;
  if (isUnread && !stamp_) {
    if (const Result<FileStamp> now = files_.stamp(path())) stamp_ = *now;
  }
  const Keeping keeping = earlier_->keepingFor(change, fingerprint_, stamp_);
  Result<Replaced> replaced = file_.replace(bytes, keeping);
  if (replaced) earlier_->settle(*replaced);
  return replaced;
}

Result<> StyleFile::write(const Dictionary& root, std::optional<ChangeKind> change) {
  replaced_ = {};
  const std::string bytes = bytesOf(root);
  if (bytes.size() > largestListFile) return Failure{path().text(), Attempt::write, Reason::overLimit};
  std::string written = fingerprint(bytes);
  if (written == fingerprint_) change.reset();
  const Result<Replaced> replaced = replace(bytes, change);
  if (!replaced) return replaced.error();
  replaced_ = *replaced;
  stamp_ = replaced->now;
  fingerprint_ = std::move(written);
  if (replaced_.unsynced) return *replaced_.unsynced;
  return {};
}

bool fitsStyleFile(const PropertyList& record) {
  constexpr int levelsAbove = 2;  // the root and "Style"
  return depthOf(record) + levelsAbove <= plistMaximumDepth;
}

bool areStyles(const Array& styles) {
  return std::ranges::all_of(
      styles, [](const PropertyList& style) { return style.dictionary() != nullptr && fitsStyleFile(style); });
}

bool holdsStyles(const Dictionary& root) {
  const Array* styles = root.array(keyNameStyle);
  return styles != nullptr && !styles->empty() && areStyles(*styles);
}

}  // namespace tarvo
