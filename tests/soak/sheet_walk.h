// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>

#include "app/program.h"
#include "console/script/manual_run_loop.h"
#include "console/script/memory_shell.h"
#include "console/script/scenario_session.h"
#include "tests/support/scenario_files.h"

namespace tarvo::test {

// A walk through sheets, panels, modal windows, menus, callers and quits, at random: whatever a user can reach, and
// whoever knocks from outside. After each step it looks whether the menus are restricted exactly while one of the two
// sheets is up that restrict them.
class SheetWalk {
 public:
  explicit SheetWalk(unsigned seed);
  // So many steps, in a program that runs on from the walk before, then all sheets are ended until nothing is up or
  // waits any more. "" or the first thing that was wrong.
  std::string walk(int steps);
  int sheetsThatWaited() const { return sheetsThatWaited_; }
  int starts() const { return starts_; }

 private:
  int upTo(int count) { return std::uniform_int_distribution<>(0, count - 1)(random_); }
  void start();
  void step();
  void act();
  void knock();
  void askBehindTheSheets();
  void workControl();
  bool endOneSheet();
  void leaveModalRun();
  void look();
  void expect(bool holds, const char* what);
  Program& program() { return session_.program(); }
  Interface& interface();

  ScenarioRoot root_;
  MemoryShell shell_;
  ManualRunLoop clock_;
  ScenarioSession session_;
  std::mt19937 random_;
  std::string wrong_, last_;
  int left_ = 0, sheetsThatWaited_ = 0, starts_ = 0;
};

}  // namespace tarvo::test
