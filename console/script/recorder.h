// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/plist/json.h"
#include "platform/services/engine.h"
#include "platform/services/file_service.h"
#include "platform/services/locations.h"
#include "platform/services/script_runner.h"
#include "platform/services/workspace.h"

// The log of a scenario: what the program did, in the order in which it happened. Everything that the log holds comes
// from here.
namespace tarvo {

class Program;

class Recorder {
 public:
  explicit Recorder(const Locations& locations) : locations_(locations) {}
  void note(Json::Object event);
  // The events since the last call.
  std::vector<Json> take();
  // Paths as the log shows them.
  std::string shown(const DiskPath& path) const { return locations_.shown(path); }
  // The same for the paths that a text names.
  std::string shownIn(std::string text) const;
  // Attaches itself to what a program tells: settings, notifications, windows.
  void observe(Program& program);
  // While it is off nothing is noted: the script acts, not the program.
  void setOn(bool on) { on_ = on; }

 private:
  void observeWindows(Program& program);
  const Locations& locations_;
  std::vector<Json> events_;
  bool on_ = true;
};

// Files as the program sees them: notes writes, and refuses what the script says.
class RecordedFiles : public FileService {
 public:
  enum class Operation { write, copy, remove, make, list };
  RecordedFiles(FileService& disk, Recorder& recorder) : disk_(disk), recorder_(recorder) {}
  // How the log names a file; "" leaves its writes out of the log.
  void name(const DiskPath& path, std::string name) { names_[path] = std::move(name); }
  // Makes such operations at and below the path fail.
  void refuse(Operation operation, const DiskPath& path) { refused_.push_back({operation, path}); }
  void allow() { refused_.clear(); }

  Result<Kind> kind(const DiskPath& path) const override { return disk_.kind(path); }
  Result<Kind> ownKind(const DiskPath& path) const override { return disk_.ownKind(path); }
  Result<> checkWritable(const DiskPath& folder) const override { return disk_.checkWritable(folder); }
  Result<Writers> writersOf(const DiskPath& folder) const override { return disk_.writersOf(folder); }
  Result<std::string> read(const DiskPath& path) const override { return disk_.read(path); }
  Result<Replaced> replace(const DiskPath& path, std::string_view bytes, const Keeping& keeping) override;
  Result<FileStamp> stamp(const DiskPath& path) const override { return disk_.stamp(path); }
  Result<> keepUnreadable(const DiskPath& path) override;
  Result<std::vector<std::string>> list(const DiskPath& folder) const override;
  Result<> makeFolder(const DiskPath& path) override;
  Result<> makePrivateFolder(const DiskPath& path) override;
  Result<> copyAs(const DiskPath& from, const DiskPath& to, const std::optional<FinderCodes>& codes) override;
  Result<> makeFolderOf(const std::vector<DiskPath>& items, const DiskPath& folder) override;
  Result<> move(const DiskPath& from, const DiskPath& to) override;
  Result<> remove(const DiskPath& path) override;
  Result<> removeEmptyFolder(const DiskPath& path) override;
  Result<> sync(const DiskPath& folder) override { return disk_.sync(folder); }
  Result<FourCharCode> typeCode(const DiskPath& path) const override { return disk_.typeCode(path); }
  Result<> setCodes(const DiskPath& path, FourCharCode type, FourCharCode creator) override {
    return disk_.setCodes(path, type, creator);
  }

 private:
  // As the disk itself refuses.
  std::optional<Failure> refusal(Operation operation, const DiskPath& path, Attempt attempt) const;
  std::optional<Failure> copyRefusal(const DiskPath& from, const DiskPath& to) const;
  void noteWrite(const DiskPath& path, bool written);
  struct Refusal {
    Operation operation;
    DiskPath path;
  };
  FileService& disk_;
  Recorder& recorder_;
  std::map<DiskPath, std::string> names_;
  std::vector<Refusal> refused_;
};

// An engine whose calls are noted.
class RecordedEngine : public Engine {
 public:
  RecordedEngine(Engine& engine, Recorder& recorder) : engine_(engine), recorder_(recorder) {}
  bool checkConnectionWithCurl() override;
  void sendRegistStyle(const StyleSet& styles, std::string& updateString) override;
  bool checkStyle() override;
  bool requestStyle(Array& styles, std::string& localUpdate) override;
  void setStandIn(bool standsIn) override { engine_.setStandIn(standsIn); }
  void attach(EngineClient* client) override { engine_.attach(client); }
  void didStoreStyles() override { engine_.didStoreStyles(); }
  void didSeedStyles(const Array& styles) override { engine_.didSeedStyles(styles); }
  bool isAsking() const override { return engine_.isAsking(); }
  bool isSending() const override { return engine_.isSending(); }
  void waitForAnswer(std::chrono::milliseconds limit) override { engine_.waitForAnswer(limit); }
  void waitUntilSent(std::chrono::milliseconds limit) override { engine_.waitUntilSent(limit); }
  std::vector<std::optional<std::size_t>> placesOfRequested() const override { return engine_.placesOfRequested(); }
  EngineForm form() const override { return engine_.form(); }
  Result<> couldReach() const override { return engine_.couldReach(); }
  Result<> didRegister() const override { return engine_.didRegister(); }
  Result<> couldRead() const override { return engine_.couldRead(); }

 private:
  Engine& engine_;
  Recorder& recorder_;
};

// A script service whose scripts are noted.
class RecordedScripts : public ScriptRunner {
 public:
  RecordedScripts(ScriptRunner& scripts, Recorder& recorder) : scripts_(scripts), recorder_(recorder) {}
  std::optional<std::string> runScript(const std::string& source) override {
    recorder_.note({{"script", source}});
    return scripts_.runScript(source);
  }

 private:
  ScriptRunner& scripts_;
  Recorder& recorder_;
};

// A desktop that only notes what it is asked for.
class RecordedWorkspace : public Workspace {
 public:
  explicit RecordedWorkspace(Recorder& recorder) : recorder_(recorder) {}
  std::vector<ProductPath> running;  // what launchedApplications answers
  Result<> openFile(const DiskPath& path) override {
    recorder_.note({{"opened", recorder_.shown(path)}});
    return {};
  }
  Result<> openAddress(const std::string& address) override {
    recorder_.note({{"address", address}});
    return {};
  }
  Result<> launchApplication(const std::string& name) override {
    recorder_.note({{"launched", name}});
    return {};
  }
  std::vector<ProductPath> launchedApplications() override { return running; }

 private:
  Recorder& recorder_;
};

}  // namespace tarvo
