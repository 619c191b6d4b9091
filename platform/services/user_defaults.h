// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/services/plist_file.h"

// The application's own settings: one property list, read when constructed, written whole at each synchronise.
// Duty: hold typed values; an absent key differs from false, "" and an empty array. Not: knowing the keys' meaning.
// A failed write is kept for who asks, and tried again at the next synchronise.
namespace tarvo {

class UserDefaults {
 public:
  UserDefaults(FileService& files, DiskPath path);
  const PropertyList* find(std::string_view key) const { return values_.find(key); }
  const std::string* string(std::string_view key) const { return values_.string(key); }
  void set(std::string_view key, PropertyList value);
  // Sets a key that is absent; its value goes to the disk with the first synchronise at which it may. Until then, and
  // where it never may, the file has no such key, whatever else is written.
  void setLater(std::string_view key, PropertyList value, std::function<bool()> mayStore);
  void remove(std::string_view key);
  // The same two for what the program notes for itself: the observer is not told.
  void noteLater(std::string_view key, PropertyList value, std::function<bool()> mayStore);
  void forget(std::string_view key);
  // Why the file that is there could not be read, so that every key counts as absent.
  const std::optional<Failure>& unread() const { return unread_; }
  // The same for a cause that may pass, such as a fault of the disk: no key is known to be absent.
  bool isUnknown() const;
  // Writes the file when something changed since the last good write; folders for it are made on demand. What could
  // not be read at first and can be now stays in it, under what was set since.
  void synchronize();
  // Told when a synchronise fails after one that did not.
  std::function<void(const Failure& why)> didFail;
  // Why the last change is not on the disk.
  const std::optional<Failure>& unwritten() const { return unwritten_; }

  // Told of every set (with the value), every removal (with null) and, by an empty key, of every synchronise.
  std::function<void(std::string_view key, const PropertyList* value)> observer;

 private:
  struct Later {
    std::string key;
    std::function<bool()> mayStore;
  };
  void put(std::string_view key, PropertyList value);
  void readAgain();
  bool forgetLater(std::string_view key);
  Dictionary toStore() const;
  FileService& files_;
  PlistFile file_;
  Dictionary values_;
  std::vector<Later> later_;
  std::optional<Failure> unread_, unwritten_;
  bool changed_ = false;
};

}  // namespace tarvo
