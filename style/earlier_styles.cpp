// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/earlier_styles.h"

#include <algorithm>
#include <utility>

#include "platform/plist/plist_reader.h"
#include "platform/services/file_service.h"
#include "platform/services/plist_file.h"
#include "platform/text/fingerprint.h"

namespace tarvo {

namespace {

using namespace std::chrono_literals;

constexpr auto betweenCopies = 1min;

}  // namespace

Moment systemMoment() { return std::chrono::floor<std::chrono::microseconds>(std::chrono::system_clock::now()); }

EarlierStyles::EarlierStyles(FileService& files, DiskPath folder, std::function<Moment()> clock)
    : files_(files), folder_(std::move(folder)), clock_(std::move(clock)) {}

KnownSets& EarlierStyles::known() {
  if (known_) return *known_;
  known_.emplace();
  const Result<std::vector<EarlierSet>> sets = list();
  if (!sets) return *known_;  // what cannot be listed is kept a second time at worst
  for (const EarlierSet& set : *sets) {
    known_->note(set);
    if (!set.fingerprint.empty()) known_->byFingerprint.emplace(set.fingerprint, set);
  }
  return *known_;
}

void KnownSets::note(const EarlierSet& set) {
  newest = std::max(newest, set.time);
  if (isOfAnEdit(set.kind)) lastEdit = std::max(lastEdit, set.time);
}

// Two changes within a microsecond, or after the clock was set back, still stand in their order.
Moment EarlierStyles::nextMoment() {
  known().newest = std::max(clock_(), known().newest + 1us);
  return known().newest;
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
  keeping.durability = isOfAnEdit(*kind) ? Durability::quick : Durability::synced;
  keeping.mayCopy = !isOfAnEdit(*kind) || now - known().lastEdit >= betweenCopies;
  return keeping;
}

void EarlierStyles::settle(const Replaced& replaced) {
  std::optional<EarlierSet> kept = earlierSetNamed(replaced.kept);
  if (!kept) return;
  kept->path = folder_ / replaced.kept;
  KnownSets& others = known();
  others.note(*kept);
  if (kept->fingerprint.empty()) return;
  const auto [former, isNew] = others.byFingerprint.try_emplace(kept->fingerprint, *kept);
  if (!isNew) former->second = keepOnce(*kept, former->second);
}

// A set that is kept twice does no harm: what fails here is left as it is.
EarlierSet EarlierStyles::keepOnce(const EarlierSet& newer, const EarlierSet& older) {
  if (newer.path == older.path) return newer;
  // What lasts must not give way to what a power cut may take: it stands for the later one too.
  const bool mustStay = !isOfAnEdit(older.kind) && isOfAnEdit(newer.kind);
  if (!mustStay) {
    static_cast<void>(files_.remove(older.path));
    return newer;
  }
  EarlierSet renamed = older;
  renamed.id = newer.id;
  renamed.time = newer.time;
  renamed.path = folder_ / fileNameOf(newer.time, older.kind, older.fingerprint);
  if (!files_.move(older.path, renamed.path)) return newer;
  static_cast<void>(files_.remove(newer.path));
  return renamed;
}

Result<std::vector<EarlierSet>> EarlierStyles::list() const {
  std::vector<EarlierSet> sets;
  const Result<FileService::Kind> kind = files_.kind(folder_);
  if (!kind) return Failure{folder_.text(), Attempt::list, kind.error().cause};
  if (*kind == FileService::Kind::absent) return sets;
  const Result<std::vector<std::string>> names = files_.list(folder_);
  if (!names) return names.error();
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
  const Result<std::string> bytes = readListFile(files_, set.path);
  if (!bytes) return bytes.error();
  const bool isDamaged = !set.fingerprint.empty() && set.fingerprint != fingerprint(*bytes);
  if (isDamaged) return Failure{set.path.text(), Attempt::read, Reason::damaged};
  std::optional<PropertyList> root = readPropertyList(*bytes);
  if (!root) return Failure{set.path.text(), Attempt::read, Reason::noPropertyList};
  if (root->dictionary() == nullptr) return Failure{set.path.text(), Attempt::read, Reason::noDictionary};
  return std::move(*root->dictionary());
}

}  // namespace tarvo
