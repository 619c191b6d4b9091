// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "style/engine_registration.h"
#include "style/style_file.h"
#include "style/style_keys.h"

// The styles in memory: the root of the style file, read once and written whole after every change.
// Duty: hand out copies of records, put changed ones back, remember the style of the current tool, write, and register
// after a write. Not: showing anything, or knowing what an option means beyond the defaults that a missing one gets.
// Records leave and enter as values: a caller's copy never changes the store.
namespace tarvo {

// A change of the styles in memory, as what it was before and after: a record, "Selection", or, when many records
// change at once, the root.
struct StoredChange {
  enum class What { record, selection, root };
  What what = What::record;
  ChangeKind kind = ChangeKind::edit;
  int index = 0;  // of the record
  Dictionary before, after;
};

class StyleStore {
 public:
  // path: the user's style file. seedPath: the copy that comes with the product.
  // earlier: keeps the files that are replaced; null keeps none. Not owned.
  StyleStore(FileService& files, Engine& engine, UserDefaults& defaults, DiskPath path, DiskPath seedPath,
             EarlierStyles* earlier = nullptr);

  // Replaces the root by the user's file, or by the seed. After a failure the root stays.
  Result<> readUserStyles();
  Result<> readSeedStyles();
  // Gives every "JE" record that lacks one the product's defaults of "TOpt1" to "TOpt5". Writes nothing.
  void fillInMissingOptions();

  const Dictionary& root() const { return tarvoStyle_; }
  // Null when "Style" is absent, no array, or empty.
  const Array* getAllStyle() const;
  // Nothing for an index outside the array (negative ones included) and for a record that is no dictionary.
  std::optional<Dictionary> getStyleAtIndex(int index) const;
  // From here on an edit that changes nothing is not written, unless something else is still to be.
  void writeOnlyChanges() { writesUnchanged_ = false; }
  // What was read or joined since the last write is not in the file yet.
  void setPending() { pending_ = true; }
  bool isPending() const { return pending_; }
  // Replaces the record and writes. An index outside the array changes and writes nothing.
  void setStyle(int index, Dictionary record, ChangeKind kind = ChangeKind::edit);
  // Whether the file could hold the record in the place of the one at the index: what is too large is not read back.
  bool hasRoomFor(int index, const Dictionary& record);
  // Replaces all there is and writes.
  void replaceRoot(Dictionary root, ChangeKind kind);
  // Replaces "Selection" and writes.
  void replaceSelection(Dictionary selection);
  // Replaces all records without writing.
  void replaceStyles(Array styles, ChangeKind kind = ChangeKind::edit);
  const Dictionary* getSelection() const { return tarvoStyle_.dictionary(keyNameSelection); }
  // Remembers the style of the current tool, where there is a "Selection", and writes in any case.
  void setSelection(int index) { choose({currentID_}, index); }
  // The same for tools named by their ids.
  void choose(const std::vector<std::string>& toolIds, int index);
  // The remembered style of the current tool, 0 when there is none. Option edits go to this style.
  int selectedStyle() const;

  // Writes the file; then, once awake, registers all styles. A failed write registers all the same: memory is the
  // truth.
  void writeTarvoStylePlist();
  // All styles with the choices of the tools, as one file for elsewhere.
  Result<> writeCopy(const DiskPath& path) { return file_.writeCopy(tarvoStyle_, path); }
  void registerStyles();  // hands all of them to the engine; nothing where the file holds none
  // Lets the engine and the store agree: an engine without styles gets these, else newer ones of the engine replace
  // them whole, unwritten. Fails when the engine's cannot be taken. Those that were replaced have to be shown.
  enum class Reconciled { kept, replaced };
  Result<Reconciled> reconcile();
  // The styles are the product's in the place of the user's, which could not be read: a service keeps the set that it
  // holds (EngineRegistration), until the user brings a whole set here or hands this one over.
  void beginStandIn() {
    registration_.beginStandIn([this] { return hasWritten_; });
  }
  void endStandIn() { registration_.endStandIn(); }
  bool isStandIn() const { return registration_.isStandIn(); }
  bool wasLeftAlone() const { return registration_.wasLeftAlone(); }  // the service, by the last registration
  // Why the user's file that is there could not be read, or the last write did not reach the disk.
  const std::optional<Failure>& unread() const { return unread_; }
  const std::optional<Failure>& unsaved() const { return unsaved_; }
  bool isSaved() const { return !unsaved_; }
  // Whether the file holds what the memory does.
  bool isStored() const { return !unsaved_ && unwritten_.empty(); }
  std::optional<StyleSet> styleSet();  // nothing where the file holds no styles
  // Whether what was loaded, with all that joined it then, has reached the disk in this run, edited or not. Styles that
  // came from elsewhere as a whole say nothing of that.
  bool isLoadStored() const { return loadStored_; }
  // What became of the file that the last write replaced.
  const Replaced& replaced() const { return file_.replaced(); }
  // What another program had written and a write here has replaced last: the name or, where it is not among the earlier
  // styles, the path under which it is kept, and the root from which both had parted.
  struct ForeignSet {
    int number = 0;  // of those in this run
    std::string kept, beside;
    Dictionary base;
  };
  const std::optional<ForeignSet>& foreign() const { return foreign_; }
  // Whether another program has changed the file or taken it away.
  StandingOfFile standingOfFile() const { return file_.standing(); }
  // What the file held when it was read or written last: from where another program's set and this one parted.
  Dictionary lastStored() const;
  // What the file holds now, whoever has written it; the styles in memory stay.
  Result<Dictionary> readPresent() const { return file_.readPresent(); }
  // How the last registration ended; nothing before the first that had styles to hand over.
  std::optional<Result<>> registration() const { return registration_.outcome(); }
  void settleRegistration() { registration_.settle(); }  // the engine may know more of it
  std::function<void(const StoredChange&)> didChange;  // told after a change of what is to be written, before the write
  std::function<void()> didWrite;                      // told after each write, before the engine is
  std::function<void()> didRegister;                   // told after each registration
  const DiskPath& path() const { return file_.path(); }

  // While start-up or a take-over from the engine is running nothing is registered. It is running at first.
  bool isAwakening() const { return awakening_; }
  void setAwakening(bool awakening) { awakening_ = awakening; }
  // Id of the chosen sibling tool, the key into "Selection"; "" at first.
  const std::string& currentID() const { return currentID_; }
  void setCurrentID(std::string id) { currentID_ = std::move(id); }

 private:
  Result<> readFrom(StyleFile& file);
  Result<> writeRoot();  // fails also where the memory does not suffice
  bool writesAll() const { return writesUnchanged_ || pending_; }
  void noteForeign(const Replaced& replaced);
  void tellChange(StoredChange change);
  void noteChange(ChangeKind kind) { changed_ = std::max(changed_.value_or(kind), kind); }
  StyleFile file_, seed_;
  EngineRegistration registration_;
  Dictionary tarvoStyle_;
  std::string currentID_;
  bool awakening_ = true, pending_ = false, writesUnchanged_ = true, ofLoad_ = true, loadStored_ = false,
       hasWritten_ = false;
  std::optional<Failure> unread_, unsaved_;
  std::optional<ChangeKind> changed_;  // what has changed styles since the last write
  std::optional<ForeignSet> foreign_;
  std::vector<StoredChange> unwritten_;  // the changes since the last write, in their order
};

}  // namespace tarvo
