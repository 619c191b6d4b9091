// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/verb_program.h"

#include "app/product.h"
#include "app/program.h"
#include "console/verbs/refusal.h"
#include "platform/services/failure_text.h"

namespace tarvo {

class VerbProgram::ToldPanels : public Panels {
 public:
  explicit ToldPanels(std::ostream& err) : err_(err) {}
  bool refused() const { return refused_; }
  void refuse(const std::string& reason) {
    err_ << reason << '\n';
    refused_ = true;
  }
  void answer(const DiskPath& path) { path_ = path; }
  void beep() override {}
  void tell(const std::string& text) override { err_ << text << '\n'; }
  int runAlertPanel(const Alert& alert) override {
    refuse((alert.title.empty() ? "" : alert.title + ": ") + alert.message);
    return 0;
  }
  void beginAlertSheet(Window&, const Alert& alert, std::function<void(int)> handler) override {
    handler(runAlertPanel(alert));
  }
  std::optional<DiskPath> runOpenPanel(const OpenPanel&) override { return path_; }
  void beginSavePanel(Window&, const SavePanel&, std::function<void(int, const DiskPath&)> handler) override {
    handler(path_ ? 1 : 0, path_.value_or(DiskPath()));
  }

 private:
  std::ostream& err_;
  std::optional<DiskPath> path_;
  bool refused_ = false;
};

// Says once that the service cannot be reached, or that it did not store the styles.
class VerbProgram::ToldEngine : public Engine {
 public:
  ToldEngine(Engine& engine, Console& console) : engine_(engine), console_(console), told_(!console.engineIsWanted) {}
  const EngineCalls& calls() const { return calls_; }
  bool checkConnectionWithCurl() override {
    const bool reachable = engine_.checkConnectionWithCurl();
    if (!reachable) tell("the style service cannot be reached; it keeps its former styles", engine_.couldReach());
    calls_.reached = calls_.reached && reachable;
    return reachable;
  }
  void sendRegistStyle(const StyleSet& styles, std::string& updateString) override {
    engine_.sendRegistStyle(styles, updateString);
    calls_.stored = engine_.didRegister().has_value();
    if (!calls_.stored) tell("the style service did not store the styles", engine_.didRegister());
    calls_.handedOver = static_cast<int>(styles.records.size());
  }
  bool checkStyle() override { return engine_.checkStyle(); }
  bool requestStyle(Array& styles, std::string& localUpdate) override {
    const bool newer = engine_.requestStyle(styles, localUpdate);
    if (newer) calls_.offered = Offer{static_cast<int>(styles.size()), localUpdate};
    return newer;
  }
  std::string form() const override { return engine_.form(); }
  Result<> couldReach() const override { return engine_.couldReach(); }
  Result<> didRegister() const override { return engine_.didRegister(); }
  Result<> couldRead() const override { return engine_.couldRead(); }

 private:
  // Some engines know why.
  void tell(const char* what, const Result<>& why) {
    const Texts& texts = console_.product.texts();
    if (!told_) console_.err << what << (why ? "" : " (" + failureText(why.error(), texts) + ")") << '\n';
    told_ = true;
  }
  Engine& engine_;
  Console& console_;
  EngineCalls calls_;
  bool told_;
};

class VerbProgram::ToldWorkspace : public Workspace {
 public:
  explicit ToldWorkspace(std::ostream& err) : err_(err) {}
  void openFile(const DiskPath& path) override { err_ << "would open " << path.text() << '\n'; }
  void openAddress(const std::string& address) override { err_ << "would open " << address << '\n'; }
  void launchApplication(const std::string& name) override { err_ << "would start " << name << '\n'; }
  std::vector<ProductPath> launchedApplications() override { return {}; }

 private:
  std::ostream& err_;
};

VerbProgram::VerbProgram(Console& console)
    : console_(console),
      panels_(std::make_unique<ToldPanels>(console.err)),
      service_(console.product.makeEngine(console.product.files())),
      engine_(std::make_unique<ToldEngine>(*service_, console)),
      workspace_(std::make_unique<ToldWorkspace>(console.err)) {}

VerbProgram::~VerbProgram() = default;

ExitStatus VerbProgram::run(const std::function<void(Program& program, Hand& hand)>& act) {
  const Locations& locations = console_.product.locations();
  const DiskPath lock = lockPath(locations);
  if (!console_.takeLock(lock)) return tell(console_, Refusal{lock.text(), "Refusal.Locked", "", ExitStatus::locked});
  return runProgram(act);
}

void VerbProgram::refuse(const std::string& reason) { panels_->refuse(reason); }

void VerbProgram::answerFilePanels(const DiskPath& path) { panels_->answer(path); }

const VerbProgram::EngineCalls& VerbProgram::engineCalls() const { return engine_->calls(); }

ExitStatus VerbProgram::runProgram(const std::function<void(Program& program, Hand& hand)>& act) {
  Program program(console_.product.services(console_.product.files(), *engine_, console_.runLoop, *panels_,
                                            shell_.windowHost(), *workspace_));
  std::optional<Failure> unsaved;  // the first
  StyleStore& store = program.rooms().store;
  store.didWrite = [&] {
    if (!unsaved) unsaved = store.unsaved();
  };
  shell_.programMade(program);
  const bool started = program.construct() && program.load();
  if (started) {
    act(program, shell_.hand());
    program.quit();
  }
  shell_.programEnds(program);
  if (unsaved) console_.err << failureText(*unsaved, console_.product.texts()) << '\n';
  return started && !unsaved && !panels_->refused() ? ExitStatus::done : ExitStatus::refused;
}

}  // namespace tarvo
