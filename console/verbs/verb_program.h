// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>

#include "console/script/memory_shell.h"
#include "console/verbs/command.h"
#include "platform/services/engine.h"
#include "platform/services/panels.h"
#include "platform/services/workspace.h"

namespace tarvo {

class Program;

// A program for one verb: no window, no launch step; what it would tell in alerts goes to the error stream.
// Duty: start it, watch whether something was refused or could not be written, end it. Not: what the verb does with it.
class VerbProgram {
 public:
  explicit VerbProgram(Console& console);
  ~VerbProgram();
  VerbProgram(const VerbProgram&) = delete;
  VerbProgram& operator=(const VerbProgram&) = delete;

  // Takes the lock, starts, lets the verb act, and ends as the quit command does.
  ExitStatus run(const std::function<void(Program& program, Hand& hand)>& act);

  // For the verb while it acts. Tells why something is not done.
  void refuse(const std::string& reason);
  // Every file panel from now on is answered by this path; else it is cancelled.
  void answerFilePanels(const DiskPath& path);

  // A newer set that the service handed out.
  struct Offer {
    int styles;
    std::string stamp;
  };
  // What became of the exchanges with the style service.
  struct EngineCalls {
    bool reached = true;            // whenever it was asked for
    bool stored = true;             // whatever was handed over
    std::optional<int> handedOver;  // the number of styles, where it happened
    std::optional<Offer> offered;
  };
  const EngineCalls& engineCalls() const;

 private:
  class ToldPanels;
  class ToldEngine;
  class ToldWorkspace;
  ExitStatus runProgram(const std::function<void(Program& program, Hand& hand)>& act);
  Console& console_;
  MemoryShell shell_;
  std::unique_ptr<ToldPanels> panels_;
  std::unique_ptr<Engine> service_;
  std::unique_ptr<ToldEngine> engine_;
  std::unique_ptr<ToldWorkspace> workspace_;
};

}  // namespace tarvo
