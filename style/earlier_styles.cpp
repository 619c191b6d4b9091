// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/earlier_styles.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/plist/plist_reader.h"
#include "platform/services/file_service.h"
#include "platform/text/fingerprint.h"

namespace tarvo {

namespace {

using namespace std::chrono_literals;

constexpr auto betweenCopies = 1min;

}  // namespace

Moment systemMoment() { return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now()); }

EarlierStyles::EarlierStyles(FileService& files, DiskPath folder, std::function<Moment()> clock)
    : files_(files), folder_(std::move(folder)), clock_(std::move(clock)) {}

// Two changes within a microsecond, or after the clock was set back, still stand in their order.
Moment EarlierStyles::nextMoment() {
  last_ = std::max(clock_(), last_ + 1us);
  return last_;
}

EarlierStyles::Known& EarlierStyles::known() {
  if (!known_) {
    known_.emplace();
    for (const EarlierSet& set : list()) {
      if (!set.fingerprint.empty()) known_->emplace(set.fingerprint, set.path.name());
    }
  }
  return *known_;
}

Keeping EarlierStyles::keepingFor(std::optional<ChangeKind> kind, const std::string& fingerprint,
                                  const std::optional<FileStamp>& expected) {
  const Moment now = nextMoment();
  Keeping keeping;
  keeping.folder = folder_;
  keeping.expected = expected;
  keeping.foreignName = fileNameOf(now, ChangeKind::otherProgram, "");
  if (!kind) return keeping;
  keeping.name = fileNameOf(now, *kind, fingerprint);
  keeping.durability = *kind <= ChangeKind::edit ? Durability::quick : Durability::synced;
  keeping.mayCopy = *kind > ChangeKind::edit || now - lastCopy_ >= betweenCopies;
  return keeping;
}

void EarlierStyles::settle(const Keeping& keeping, const Replaced& replaced) {
  if (replaced.wasCopied) lastCopy_ = last_;
  const std::optional<EarlierSet> kept = earlierSetNamed(replaced.kept);
  if (!kept || kept->fingerprint.empty()) return;
  const auto [former, isNew] = known().try_emplace(kept->fingerprint, replaced.kept);
  if (isNew || former->second == replaced.kept) return;
  const std::string older = std::exchange(former->second, replaced.kept);
  const std::optional<EarlierSet> other = earlierSetNamed(older);
  // A set that is kept twice does no harm: what fails here is left as it is.
  if (!other || other->kind <= ChangeKind::edit || keeping.durability != Durability::quick) {
    static_cast<void>(files_.remove(folder_ / older));
    return;
  }
  // What lasts must not give way to what a power cut may take: it stands for the later one too.
  const std::string renamed = fileNameOf(kept->time, other->kind, kept->fingerprint);
  if (!files_.move(folder_ / older, folder_ / renamed)) return;
  former->second = renamed;
  static_cast<void>(files_.remove(folder_ / replaced.kept));
}

std::vector<EarlierSet> EarlierStyles::list() const {
  std::vector<EarlierSet> sets;
  const Result<std::vector<std::string>> names = files_.list(folder_);
  if (!names) return sets;  // nobody has kept anything, or nothing of it can be had
  for (const std::string& name : *names) {
    std::optional<EarlierSet> set = earlierSetNamed(name);
    if (!set) continue;
    set->path = folder_ / name;
    sets.push_back(std::move(*set));
  }
  std::ranges::sort(sets, [](const EarlierSet& one, const EarlierSet& other) { return one.time > other.time; });
  return sets;
}

Result<Dictionary> EarlierStyles::read(const EarlierSet& set) const {
  const Result<std::string> bytes = files_.read(set.path);
  if (!bytes) return bytes.error();
  const bool isDamaged = !set.fingerprint.empty() && set.fingerprint != fingerprint(*bytes);
  if (isDamaged) return Failure{set.path.text(), Attempt::read, Reason::damaged};
  std::optional<PropertyList> root = readPropertyList(*bytes);
  if (!root) return Failure{set.path.text(), Attempt::read, Reason::noPropertyList};
  if (root->dictionary() == nullptr) return Failure{set.path.text(), Attempt::read, Reason::noDictionary};
  return std::move(*root->dictionary());
}

}  // namespace tarvo
