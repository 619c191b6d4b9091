// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <array>
#include <cstdio>
#include <filesystem>

#include "app/operations.h"
#include "app/program.h"
#include "console/script/interpreter.h"
#include "console/script/scenario_session.h"
#include "console/script/script_commands.h"
#include "console/script/script_error.h"
#include "console/script/state_json.h"
#include "platform/plist/plist_reader.h"
#include "platform/text/utf8.h"

// What a script can look at, and what it expects to see.
namespace tarvo {

namespace {

void log(Interpreter& interpreter, ScriptLine& line) {
  takeEnd(line);
  interpreter.beginPrinting();
  for (Json& event : interpreter.session().recorder().take()) interpreter.print(std::move(event));
}

void show(Interpreter& interpreter, ScriptLine& line) {
  const std::string name = takeWord(line, "a control");
  takeEnd(line);
  interpreter.beginPrinting();
  interpreter.print(stateOf(interpreter.control(name)));
}

void style(Interpreter& interpreter, ScriptLine& line) {
  const int index = takeInteger(line, "an index");
  takeEnd(line);
  const std::optional<Dictionary> record = interpreter.session().program().rooms().store.getStyleAtIndex(index);
  interpreter.beginPrinting();
  interpreter.print(record ? jsonFromPropertyList(*record) : Json());
}

bool isText(std::string_view bytes) {
  for (std::size_t at = 0; at < bytes.size();) {
    if (nextCodePoint(bytes, at) >= invalidByte) return false;
  }
  return true;
}

std::string hexadecimal(std::string_view bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string out;
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    out += digits[value >> 4];
    out += digits[value & 15];
  }
  return out;
}

void addContent(Json::Object& object, const FileService& files, const DiskPath& path) {
  if (const auto names = files.list(path)) {
    object.emplace("names", Json::List(names->begin(), names->end()));
    return;
  }
  const Result<std::string> bytes = files.read(path);
  if (!bytes) return;
  if (const std::optional<PropertyList> list = readPropertyList(*bytes)) {
    object.emplace("plist", jsonFromPropertyList(*list));
  } else if (isText(*bytes)) {
    object.emplace("text", *bytes);
  } else {
    object.emplace("hex", hexadecimal(*bytes));
  }
}

const char* kindOf(std::filesystem::file_type type) {
  switch (type) {
    case std::filesystem::file_type::not_found: return "absent";
    case std::filesystem::file_type::symlink: return "link";
    case std::filesystem::file_type::directory: return "folder";
    default: return "file";
  }
}

void disk(Interpreter& interpreter, ScriptLine& line) {
  ScenarioSession& session = interpreter.session();
  const DiskPath path = session.path(takeWord(line, "a path"));
  takeEnd(line);
  const std::filesystem::path real = path.text();
  std::error_code error;
  const std::filesystem::file_type type = std::filesystem::symlink_status(real, error).type();
  Json::Object object{{"path", session.recorder().shown(path)}, {"kind", kindOf(type)}};
  const std::filesystem::file_status target = std::filesystem::status(real, error);
  if (std::filesystem::exists(target)) {
    char mode[8];
    std::snprintf(mode, sizeof mode, "%04o", static_cast<unsigned>(target.permissions()));
    object.emplace("mode", mode);
    addContent(object, session.product().files(), path);
  }
  interpreter.beginPrinting();
  interpreter.print(std::move(object));
}

void call(Interpreter& interpreter, ScriptLine& line) {
  const std::string name = takeWord(line, "an operation");
  const Operation* operation = findOperation(name);
  if (operation == nullptr) throw ScriptError("there is no operation " + name);
  std::vector<std::string> arguments = line.words();
  const int count = static_cast<int>(arguments.size());
  if (operation->takesMore ? count < operation->argumentCount : count != operation->argumentCount) {
    throw ScriptError(name + " takes " + std::to_string(operation->argumentCount) +
                      (operation->takesMore ? " or more" : "") + " arguments");
  }
  if (operation->takesPaths) {
    for (std::string& argument : arguments) argument = interpreter.session().path(argument).text();
  }
  const std::optional<PropertyList> result = operation->run(interpreter.session().program(), arguments);
  interpreter.beginPrinting();
  interpreter.print(Json::Object{{"result", result ? jsonFromPropertyList(*result) : Json()}});
}

Json expectation(std::string_view text) {
  const std::optional<Json> value = readJson(text);
  if (!value) throw ScriptError("no JSON is expected: " + std::string(text));
  return *value;
}

void expectNext(std::deque<Json>& printed, const Json& expected) {
  if (printed.empty()) throw ScriptError("expected " + writeJson(expected) + ", but nothing is left");
  const Json value = std::move(printed.front());
  printed.pop_front();
  if (!matches(expected, value)) throw ScriptError("expected " + writeJson(expected) + ", got " + writeJson(value));
}

void expectAny(std::deque<Json>& printed, const Json& expected) {
  while (!printed.empty()) {
    const Json value = std::move(printed.front());
    printed.pop_front();
    if (matches(expected, value)) return;
  }
  throw ScriptError("expected " + writeJson(expected) + " somewhere, but it is not there");
}

void expect(Interpreter& interpreter, ScriptLine& line) {
  std::deque<Json>& printed = interpreter.printed();
  const std::string text = line.rest();
  if (text == "end") {
    if (!printed.empty()) throw ScriptError("expected the end, got " + writeJson(printed.front()));
  } else if (text.starts_with("any ")) {
    expectAny(printed, expectation(std::string_view(text).substr(4)));
  } else {
    expectNext(printed, expectation(text));
  }
}

constexpr unsigned once = ScriptCommand::running | ScriptCommand::terminated;
constexpr std::array commands{
    ScriptCommand{"log", ScriptCommand::always, log},      ScriptCommand{"show", once, show},
    ScriptCommand{"style", ScriptCommand::running, style}, ScriptCommand{"disk", ScriptCommand::always, disk},
    ScriptCommand{"call", ScriptCommand::running, call},   ScriptCommand{"expect", ScriptCommand::always, expect}};

}  // namespace

std::span<const ScriptCommand> outputCommands() { return commands; }

}  // namespace tarvo
