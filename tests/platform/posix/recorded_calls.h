// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace tarvo::test {

// The calls to the system that make a write last, in their order, while one of these lives; they happen as well.
// Not: calls of other threads.
class RecordedCalls {
 public:
  RecordedCalls();
  ~RecordedCalls();
  RecordedCalls(const RecordedCalls&) = delete;
  RecordedCalls& operator=(const RecordedCalls&) = delete;

  // "write", "sync file", "sync folder", "rename", "owner", "mode"; the same call again in a row once.
  const std::vector<std::string>& names() const { return names_; }
  // From now on the system refuses to change the owner, or the group alone as well.
  void refuseOwner() { refusesOwner_ = true; }
  void refuseGroup() { refusesOwner_ = refusesGroup_ = true; }
  // From now on a sync of a file fails.
  void refuseSync() { refusesSync_ = true; }

  // For the calls themselves: notes one. False: it is refused.
  bool note(const std::string& name, bool onlyGroup = false);

 private:
  std::vector<std::string> names_;
  bool refusesOwner_ = false, refusesGroup_ = false, refusesSync_ = false;
};

}  // namespace tarvo::test
