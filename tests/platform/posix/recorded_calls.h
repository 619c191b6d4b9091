// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <string>
#include <vector>

namespace tarvo::test {

// The calls to the system that make something and make it last, in their order, while one of these lives; they happen
// as well, unless a test lets one fail. Not: calls of other threads.
class RecordedCalls {
 public:
  RecordedCalls();
  ~RecordedCalls();
  RecordedCalls(const RecordedCalls&) = delete;
  RecordedCalls& operator=(const RecordedCalls&) = delete;

  // "write", "copy" (by the system), "sync file", "sync folder", "rename", "rename if free", "link", "symbolic link",
  // "folder", "owner", "mode", "attribute"; the same call again in a row once.
  const std::vector<std::string>& names() const { return names_; }
  // From now on the call with this number, from 0, fails for this cause, and no other.
  void failAt(int call, int cause);
  bool hasFailed() const { return hasFailed_; }
  // From now on every call of that name fails for this cause.
  void fail(const std::string& name, int cause) { failing_[name] = cause; }
  // From now on the system refuses to change the owner, or the group alone as well.
  void refuseOwner() { refusesOwner_ = true; }
  void refuseGroup() { refusesOwner_ = refusesGroup_ = true; }
  // For the calls themselves: notes one. 0, or why it is to fail.
  int note(const std::string& name, bool onlyGroup = false);

 private:
  std::vector<std::string> names_;
  std::map<std::string, int> failing_;
  int calls_ = 0, failsAt_ = -1, cause_ = 0;
  bool refusesOwner_ = false, refusesGroup_ = false, hasFailed_ = false;
};

}  // namespace tarvo::test
