// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/script/scenario_session.h"

#include "app/program.h"
#include "console/script/script_error.h"
#include "platform/text/text_rules.h"
#include "style/style_keys.h"

namespace tarvo {

ScenarioSession::ScenarioSession(const ScenarioOptions& options, ScenarioShell& shell, ScenarioClock& clock)
    : product_(options.product),
      shell_(shell),
      clock_(clock),
      folder_(options.folder),
      takeLock_(options.takeLock),
      recorder_(product_.locations()),
      files_(product_.files(), recorder_),
      configured_(options.product.engine ? product_.makeEngine(files_) : nullptr),
      engine_(configured_ ? *configured_ : scripted_, recorder_),
      panels_(recorder_, shell),
      workspace_(recorder_),
      scripts_(product_.scripts(), recorder_) {
  files_.name(product_.locations().inHome(gStylePath), "styles");
  files_.name(toolListPath(product_.locations()), "tool list");
  files_.name(userDefaultsPath(product_.locations()), "");
  files_.name(product_.paths().localEnginePath(), "");
}

ScenarioSession::~ScenarioSession() { drop(); }

ScriptedEngine& ScenarioSession::engine() {
  if (configured_) throw ScriptError("the engine is not the scripted one");
  return scripted_;
}

Program& ScenarioSession::program() {
  if (!program_) throw ScriptError("no program runs");
  return *program_;
}

void ScenarioSession::takeLock() {
  const Locations& locations = product_.locations();
  const Result<> taken = takeLock_ ? takeLock_(userPlace(product_.files(), locations, product_.paths())) : Result<>();
  lockedOut_ = !taken;
  if (!taken && taken.error().cause == Reason::noRegularFile) {
    throw ScriptError("the lock of these files is no file: " + locations.shown(DiskPath(taken.error().path)));
  }
  if (!taken) throw ScriptError("another manager works on these files");
  takeLock_ = {};
}

void ScenarioSession::start() {
  drop();
  takeLock();
  program_ = std::make_unique<Program>(
      product_.services(files_, engine_, clock_, panels_, shell_.windowHost(), workspace_, &scripts_));
  phase_ = Phase::running;
  recorder_.observe(*program_);
  program_->didTerminate = [this] {
    recorder_.note({{"terminated", true}});
    panels_.dropSavePanels();
    phase_ = Phase::terminated;
  };
  program_->didShow = [this] { engine_.waitForAnswer(Engine::launchPatience); };
  shell_.programMade(*program_);
  if (!program_->construct()) return;
  constructed_ = true;
  shell_.programConstructed(*program_);
  if (program_->load()) program_->launch();
}

void ScenarioSession::drop() {
  if (!program_) return;
  if (phase_ != Phase::none) engine_.waitUntilSent(Engine::quitPatience);
  panels_.dropSavePanels();
  shell_.programEnds(*program_);
  constructed_ = false;
  program_.reset();
}

void ScenarioSession::kill() {
  if (program().windows().modalWindow() != nullptr) throw ScriptError("a modal window is up");
  phase_ = Phase::none;
  drop();
}

DiskPath ScenarioSession::path(const std::string& text) const {
  const Locations& locations = product_.locations();
  if (text.starts_with("root:/")) return locations.onDisk(ProductPath(text.substr(5)));
  if (text.starts_with("home:/")) return locations.inHome(text.substr(6));
  return isAbsolutePath(text) ? DiskPath(text) : folder_ / text;
}

}  // namespace tarvo
