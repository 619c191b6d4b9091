// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/plist/property_list.h"
#include "platform/services/keeping.h"

// The style files that were replaced, each as it stood until then: what can be brought back.
// Duty: say under which name the file that goes is kept, list what is kept, read it when it is whole, and let go of
// what is old. Not: replacing files; knowing what a style is.
//
// They lie below "Library/Application Support/Wordhaven/Tarvo Styles" of the home, in files
// "20261122T031729.123456Z edit 0123…ef.plist": when it was replaced (UTC), by what, and the fingerprint of its bytes,
// "-" where this program never saw them. Several programs may keep at once. What an edit replaced is kept by a link
// that is not synced: a power cut may take the last ones of these. Everything else is on the disk before it is
// replaced.
namespace tarvo {

class FileService;

using Moment = std::chrono::sys_time<std::chrono::microseconds>;

// What replaced a set of styles, weakest first: of several at once the last one counts. repair: what the program itself
// mended when it met names that are gone or options that are missing.
enum class ChangeKind { repair, edit, import, restore, merge, pull, otherProgram, unreadable };
inline constexpr ChangeKind lastChangeKind = ChangeKind::unreadable;
std::string_view nameOf(ChangeKind kind);  // "edit", as in the names of the files
// An edit, or a repair: what those replaced is kept as cheaply as can be, and gives way to what anything else did.
constexpr bool isOfAnEdit(ChangeKind kind) { return kind <= ChangeKind::edit; }

struct EarlierSet {
  std::string id;  // its time: "20261122T031729.123456Z"
  Moment time;
  ChangeKind kind = ChangeKind::edit;
  std::string fingerprint;  // "" where it is not known
  DiskPath path;
};
std::string isoText(Moment time);    // "2026-11-22T03:17:29Z"
std::string localText(Moment time);  // "2026-11-22 12:17:29", as the clocks here show it
std::string fileNameOf(Moment time, ChangeKind kind, const std::string& fingerprint);
// Nothing for another name.
std::optional<EarlierSet> earlierSetNamed(const std::string& fileName);

Moment systemMoment();

// What lies in the folder, as it is needed at each edit.
struct KnownSets {
  std::map<std::string, EarlierSet> byFingerprint;
  Moment newest{}, lastEdit{};  // of all; of those that isOfAnEdit
  void note(const EarlierSet& set);
};

class EarlierStyles {
 public:
  EarlierStyles(FileService& files, DiskPath folder, std::function<Moment()> clock = systemMoment);

  // How the file that goes is to be kept, later than all that is kept by now, whatever the clock says. kind: nothing
  // when only choices of tools change, which are not kept. fingerprint: of the bytes that this program read or wrote
  // last.
  Keeping keepingFor(std::optional<ChangeKind> kind, const std::string& fingerprint,
                     const std::optional<FileStamp>& expected);
  // After the replacement: of two with the same bytes the later one stays.
  void settle(const Replaced& replaced);

  const DiskPath& folder() const { return folder_; }
  Result<std::vector<EarlierSet>> list() const;  // newest first; none where nothing was kept yet
  // Its root. Fails when it is damaged, and for what is larger than any style file.
  Result<Dictionary> read(const EarlierSet& set) const;
  // Keeps all of the last day up to 200, then the last of each hour for a week and of each day for a year, and of these
  // the newest that fit into 256 MiB; the newest of each kind in any case, which take nothing of that room. What cannot
  // be removed stays.
  void thin();

 private:
  KnownSets& known();
  Moment nextMoment();
  bool identify(EarlierSet& set);
  EarlierSet keepOnce(const EarlierSet& newer, const EarlierSet& older);
  FileService& files_;
  DiskPath folder_;
  std::function<Moment()> clock_;
  std::optional<KnownSets> known_;  // listed when it is needed first
};

}  // namespace tarvo
