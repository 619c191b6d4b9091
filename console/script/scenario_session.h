// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <string>

#include "app/product.h"
#include "console/script/recorder.h"
#include "console/script/scenario_clock.h"
#include "console/script/scenario_shell.h"
#include "console/script/scripted_engine.h"
#include "console/script/scripted_panels.h"

namespace tarvo {

class Program;
struct UserPlace;

struct ScenarioOptions {
  ProductOptions product;  // without an engine: the scripted one
  DiskPath folder;         // relative paths of the script start here
  // Takes the lock of a user's files for the rest of the script. Fails where another process holds it, or
  // (noRegularFile) where what lies there is no file. Empty: the script has the files to itself anyway.
  std::function<Result<>(const UserPlace& place)> takeLock = {};
};

// The program under a script and everything around it: the product, the recorded services, the shell.
// Duty: start, end and drop programs on one disk; hold what the script sets up for them. Not: the script's lines.
class ScenarioSession {
 public:
  // clock: the run loop of the programs. shell and clock outlive the session.
  ScenarioSession(const ScenarioOptions& options, ScenarioShell& shell, ScenarioClock& clock);
  ~ScenarioSession();
  ScenarioSession(const ScenarioSession&) = delete;
  ScenarioSession& operator=(const ScenarioSession&) = delete;

  // Why no program can be started with these options; "" when one can.
  const std::string& problem() const { return product_.problem(); }

  bool isLockedOut() const { return lockedOut_; }  // another process works on these files

  enum class Phase { none, running, terminated };  // none: before a start and after a kill
  Phase phase() const { return phase_; }
  // Construction, interface loading, launch. Throws ScriptError when another process works on these files.
  void start();
  void kill();  // drops the program without quitting
  // The running or terminated one. Throws ScriptError when there is none.
  Program& program();
  // Views can be worked: the program got as far as its interface.
  bool hasHand() const { return constructed_; }

  Product& product() { return product_; }
  const Product& product() const { return product_; }
  ScenarioShell& shell() { return shell_; }
  ScenarioClock& clock() { return clock_; }
  Recorder& recorder() { return recorder_; }
  RecordedFiles& files() { return files_; }
  RecordedWorkspace& workspace() { return workspace_; }
  ScriptedPanels& panels() { return panels_; }
  ScriptedEngine& engine();  // throws ScriptError where --engine named another one

  // A path of a script: "root:/…", "home:/…", absolute, or relative to the script's folder.
  DiskPath path(const std::string& text) const;

 private:
  void drop();
  void takeLock();
  Product product_;
  ScenarioShell& shell_;
  ScenarioClock& clock_;
  DiskPath folder_;
  std::function<Result<>(const UserPlace&)> takeLock_;
  Recorder recorder_;
  RecordedFiles files_;
  ScriptedEngine scripted_;
  std::unique_ptr<Engine> configured_;  // by --engine; null: the scripted one is used
  RecordedEngine engine_;
  ScriptedPanels panels_;
  RecordedWorkspace workspace_;
  RecordedScripts scripts_;
  std::unique_ptr<Program> program_;
  Phase phase_ = Phase::none;
  bool constructed_ = false, lockedOut_ = false;
};

}  // namespace tarvo
