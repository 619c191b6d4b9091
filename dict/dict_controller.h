// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/services/result.h"
#include "platform/text/paths.h"
#include "style/dictionary_kind.h"

// The model of one ordered dictionary list: a folder of dictionary files, and which of them are loaded, in which order.
// Duty: scan the folder, mark what a style names, answer the loaded names in order, create dictionaries from the
// bundle's templates. Not: holding style data, or any user interface. The caller hands in a style's names and reads
// them back. A folder that cannot be read is no empty one: the model then answers as for one, says why, and keeps the
// names that were handed in until a scan succeeds. Names are file names with extension, compared ignoring case (but for
// the four medical file names of the scan).
namespace tarvo {

class Bundle;
class FileService;
class Locations;
class ProductPaths;
class Texts;

inline constexpr int TDMax = 8;    // technical dictionaries loaded per style and direction
inline constexpr int UDMax = 5;    // user dictionaries
inline constexpr int UTMAMax = 5;  // translation memories

// One file found in the folder. Never stored.
struct DictionaryEntry {
  std::string name;    // as listed, extension included
  bool check = false;  // loaded
  int order = -1;      // position in the list last handed in; -1 when not loaded
};

using Names = std::vector<std::string>;

class DictController {
 public:
  struct Services {
    FileService& files;
    const Texts& texts;
    const Bundle& bundle;
    const ProductPaths& paths;
    const Locations& locations;
  };
  explicit DictController(Services services) : services_(services) {}

  bool initializeDictController(DictionaryKind kind, DiskPath dicPath, Direction direction);
  void setKind(DictionaryKind kind) { kind_ = kind; }
  void setDirection(Direction direction) { direction_ = direction; }
  void setDicFolderPath(DiskPath path) { dicFolderPath_ = std::move(path); }
  DictionaryKind kind() const { return kind_; }
  Direction direction() const { return direction_; }
  const DiskPath& dicFolderPath() const { return dicFolderPath_; }

  bool initializeDictionary();  // rescan; true when an entry was found
  // Why the last scan may lack names: nothing may be taken out of a style for that they have no entry.
  const std::optional<Failure>& unread() const { return unread_; }
  Result<> couldRead() const { return unread_ ? Result<>(*unread_) : Result<>(); }  // the same as an answer
  // Loads exactly these, in this order, as far as they have an entry and their file still exists. A common dictionary
  // among them that is missing is made anew, which rescans.
  void updateDictionary(Names names);
  std::optional<Names> selectedDictionary() const;  // nothing, never an empty list, when none is loaded
  Names notSelectedDictionary() const;
  Names getAllDictionary() const;
  void loadDictionary(const Names& names);
  void unloadDictionary(const std::string& name);
  void exchangeDictionary(int position, int downDicNum);  // nothing for positions outside the loaded list
  void updateAllDictionary();
  void clearInformation();
  bool checkMaxOver(const std::optional<Names>& names) const;
  DiskPath getDicPath(const std::optional<std::string>& name) const;
  bool isExitsDic(const std::string& name);  // a common dictionary that is missing is made anew, empty
  bool isExitsDic2(const std::string& name) const;
  // After a failure nothing was created and isLoaded is untouched. isLoaded: whether the list had room for it.
  Result<> createDictionary(const std::string& name, bool& isLoaded);
  bool addCreatedDictionary(const std::string& name);

  const std::optional<std::vector<DictionaryEntry>>& allDictionaries() const {
    return entries_;
  }  // nothing before a scan

 private:
  std::optional<std::size_t> entryNamed(const std::string& name) const;
  Names loadedNames() const;
  Names namesToKeep() const { return unread_ ? handedIn_ : loadedNames(); }  // over a scan
  bool isCommonName(const std::string& name) const;
  bool isBeingCreated(const std::string& name) const;
  Services services_;
  DictionaryKind kind_ = DictionaryKind::technical;
  DiskPath dicFolderPath_;
  Direction direction_ = Direction::japaneseToEnglish;
  std::optional<std::vector<DictionaryEntry>> entries_;
  std::unordered_map<std::string, std::size_t> positions_;  // of the first entry under a folded name
  Names beingCreated_;
  Names handedIn_;  // to be loaded, since the marks were cleared last
  std::optional<Failure> unread_;
};

}  // namespace tarvo
