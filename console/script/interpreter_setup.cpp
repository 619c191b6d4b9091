// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <charconv>
#include <filesystem>

#include "app/program.h"
#include "console/script/interpreter.h"
#include "console/script/scenario_session.h"
#include "console/script/script_commands.h"
#include "console/script/script_error.h"
#include "platform/plist/plist_reader.h"
#include "platform/text/text_rules.h"
#include "style/style_keys.h"

// What surrounds the program: starts and ends, settings, the disk behind its back, engine, clock, screen.
namespace tarvo {

namespace {

void start(Interpreter& interpreter, ScriptLine& line) {
  takeEnd(line);
  interpreter.session().start();
}

void kill(Interpreter& interpreter, ScriptLine& line) {
  takeEnd(line);
  interpreter.session().kill();
}

void advance(Interpreter& interpreter, ScriptLine& line) {
  const double seconds = takeNumber(line, "a number of seconds");
  takeEnd(line);
  interpreter.session().clock().advance(seconds);
}

// Of a style file, or a list that is nothing else.
Array stylesOf(ScenarioSession& session, const DiskPath& path) {
  const Result<std::string> bytes = session.product().files().read(path);
  const std::optional<PropertyList> list = bytes ? readPropertyList(*bytes) : std::nullopt;
  const Array* styles = list ? list->array() : nullptr;
  if (list && list->dictionary() != nullptr) styles = list->dictionary()->array(keyNameStyle);
  if (styles == nullptr) throw ScriptError("there are no styles in " + path.text());
  return *styles;
}

void engine(Interpreter& interpreter, ScriptLine& line) {
  ScenarioSession& session = interpreter.session();
  ScriptedEngine& scripted = session.engine();
  const std::string word = takeWord(line, "online, offline, probe, holds or empty");
  if (word == "online" || word == "offline") {
    scripted.setOnline(word == "online");
  } else if (word == "probe") {
    std::deque<bool> answers;
    do {
      answers.push_back(takeChoice(line, "t", "f"));
    } while (!line.atEnd());
    scripted.queueProbes(answers);
  } else if (word == "holds") {
    const DiskPath file = session.path(takeWord(line, "a file"));
    scripted.hold(stylesOf(session, file), takeWord(line, "a stamp"));
  } else if (word == "empty") {
    scripted.holdNothing();
  } else {
    throw ScriptError("the engine cannot be " + word);
  }
  takeEnd(line);
}

void screen(Interpreter& interpreter, ScriptLine& line) {
  const auto width = static_cast<float>(takeNumber(line, "a width"));
  const auto height = static_cast<float>(takeNumber(line, "a height"));
  takeEnd(line);
  interpreter.session().shell().screen.mainScreen = {0, 0, width, height};
}

void running(Interpreter& interpreter, ScriptLine& line) {
  ScenarioSession& session = interpreter.session();
  std::vector<ProductPath> paths;
  for (const std::string& word : line.words()) {
    const bool isSpelled = isAbsolutePath(word);  // as the product spells it: what runs is told so
    paths.push_back(isSpelled ? ProductPath(word) : session.product().locations().inProduct(session.path(word)));
  }
  session.workspace().running = std::move(paths);
}

// The settings of the running program, else those on the disk.
template <class Use>
void withDefaults(ScenarioSession& session, Use use) {
  if (session.phase() == ScenarioSession::Phase::running) return use(session.program().defaults());
  UserDefaults defaults(session.product().files(), userDefaultsPath(session.product().locations()));
  use(defaults);
}

void defaultValue(Interpreter& interpreter, ScriptLine& line) {
  ScenarioSession& session = interpreter.session();
  const std::string key = takeWord(line, "a key");
  const std::string value = line.rest();
  withDefaults(session, [&](UserDefaults& defaults) {
    if (value.empty()) {
      const PropertyList* found = defaults.find(key);
      interpreter.beginPrinting();
      interpreter.print(
          Json::Object{{"default", key}, {"value", found != nullptr ? jsonFromPropertyList(*found) : Json()}});
      return;
    }
    const std::optional<Json> json = value != "absent" ? readJson(value) : std::nullopt;
    const std::optional<PropertyList> set = json ? propertyListFromJson(*json) : std::nullopt;
    if (!set && value != "absent") throw ScriptError(value + " is no value of a setting");
    session.recorder().setOn(false);
    if (set) {
      defaults.set(key, *set);
    } else {
      defaults.remove(key);
    }
    defaults.synchronize();
    session.recorder().setOn(true);
  });
}

[[noreturn]] void refused(const ScenarioSession& session, const DiskPath& path, const std::error_code& cause) {
  const std::string shown = session.product().locations().shown(path);
  throw ScriptError("the disk refused that for " + shown + ": " + cause.message());
}

void require(const ScenarioSession& session, const Result<>& done, const DiskPath& path) {
  if (!done) refused(session, path, done.error().cause);
}

void makeFolderOf(ScenarioSession& session, const DiskPath& path) {
  require(session, session.product().files().makeFolder(path.folder()), path);
}

void changeMode(const ScenarioSession& session, const DiskPath& path, const std::string& octal) {
  unsigned mode = 0;
  const char* end = octal.data() + octal.size();
  if (std::from_chars(octal.data(), end, mode, 8).ptr != end) throw ScriptError(octal + " is no mode");
  std::error_code error;
  std::filesystem::permissions(path.text(), static_cast<std::filesystem::perms>(mode), error);
  if (error) refused(session, path, error);
}

void changeType(ScenarioSession& session, const DiskPath& path, const std::string& code) {
  if (code.size() != 4) throw ScriptError(code + " is no type code");
  const char letters[5] = {code[0], code[1], code[2], code[3], '\0'};
  require(session, session.product().files().setCodes(path, fourCharCode(letters), 0), path);
}

void refuse(ScenarioSession& session, ScriptLine& line) {
  constexpr std::array<std::string_view, 5> names{"write", "copy", "remove", "make", "list"};
  const std::string operation = takeWord(line, "an operation");
  const auto* known = std::find(names.begin(), names.end(), operation);
  if (known == names.end()) throw ScriptError("the disk cannot refuse to " + operation);
  session.files().refuse(static_cast<RecordedFiles::Operation>(known - names.begin()),
                         session.path(takeWord(line, "a path")));
}

void file(Interpreter& interpreter, ScriptLine& line) {
  ScenarioSession& session = interpreter.session();
  FileService& disk = session.product().files();
  const std::string word = takeWord(line, "what to do with a file");
  const auto path = [&] { return session.path(takeWord(line, "a path")); };
  if (word == "allow") {
    session.files().allow();
  } else if (word == "refuse") {
    refuse(session, line);
  } else if (word == "copy") {
    const DiskPath from = path();
    const DiskPath to = path();
    makeFolderOf(session, to);
    require(session, disk.copy(from, to), to);
  } else if (word == "remove") {
    const DiskPath target = path();
    require(session, disk.remove(target), target);
  } else if (word == "write") {
    const DiskPath target = path();
    makeFolderOf(session, target);
    require(session, disk.write(target, takeWord(line, "a text")), target);
  } else if (word == "folder") {
    const DiskPath target = path();
    require(session, disk.makeFolder(target), target);
  } else if (word == "mode") {
    const DiskPath target = path();
    changeMode(session, target, takeWord(line, "a mode"));
  } else if (word == "type") {
    const DiskPath target = path();
    changeType(session, target, takeWord(line, "a type code"));
  } else {
    throw ScriptError("a file cannot be told to " + word);
  }
  takeEnd(line);
}

constexpr unsigned beforeAndRunning = ScriptCommand::before | ScriptCommand::running;
constexpr std::array commands{ScriptCommand{"start", ScriptCommand::before | ScriptCommand::terminated, start},
                              ScriptCommand{"kill", ScriptCommand::running, kill},
                              ScriptCommand{"advance", ScriptCommand::running, advance},
                              ScriptCommand{"engine", beforeAndRunning, engine},
                              ScriptCommand{"screen", beforeAndRunning, screen},
                              ScriptCommand{"running", beforeAndRunning, running},
                              ScriptCommand{"default", ScriptCommand::always, defaultValue},
                              ScriptCommand{"file", ScriptCommand::always, file}};

}  // namespace

std::span<const ScriptCommand> setupCommands() { return commands; }

}  // namespace tarvo
