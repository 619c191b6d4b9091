// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/command_line.h"

#include <algorithm>

#include "console/verbs/addin_commands.h"
#include "console/verbs/dictionary_commands.h"
#include "console/verbs/doctor.h"
#include "console/verbs/engine_commands.h"
#include "console/verbs/history_commands.h"
#include "console/verbs/new_dictionary_command.h"
#include "console/verbs/open_command.h"
#include "console/verbs/style_commands.h"
#include "console/verbs/style_edit_commands.h"
#include "console/verbs/tool_list_command.h"

namespace tarvo {

namespace {

struct Verb {
  const char* words;  // what they mean: the text "Verb.WORDS"
  const char* arguments = "";
  std::unique_ptr<Command> (*make)(const CommandLine& line) = nullptr;  // null: a group, or a script to be run
  bool mayAnswerJson = false;
  bool needsResources = true;
};

template <class C>
std::unique_ptr<Command> make(auto... words) {
  return std::make_unique<C>(std::move(words)...);
}

Direction directionOf(const CommandLine& line) {
  return line.words.direction == "ej" ? Direction::englishToJapanese : Direction::japaneseToEnglish;
}

DictionaryKind kindOf(const CommandLine& line) {
  return line.words.kind == "memory" ? DictionaryKind::memory : DictionaryKind::user;
}

NamedList listOf(const CommandLine& line) { return {line.words.style, directionOf(line)}; }

AddinName addinOf(const CommandLine& line) { return {line.words.name, line.words.version}; }

using Line = const CommandLine&;

constexpr Verb verbs[] = {
    {"styles", "", [](Line) { return make<StylesCommand>(); }, true},
    {"style"},
    {"style show", "N", [](Line line) { return make<StyleShowCommand>(line.words.style); }, true},
    {"style set", "N KEY=VALUE...", [](Line line) { return make<StyleSetCommand>(line.words.style, line.words.pairs); },
     true},
    {"style use", "N TOOLS...", [](Line line) { return make<StyleUseCommand>(line.words.style, line.words.tools); },
     true},
    {"style rename", "N NAME", [](Line line) { return make<StyleRenameCommand>(line.words.style, line.words.name); },
     true},
    {"style export", "N FILE", [](Line line) { return make<StyleExportCommand>(line.words.style, line.words.file); },
     true},
    {"style import", "N FILE", [](Line line) { return make<StyleImportCommand>(line.words.style, line.words.file); },
     true},
    {"dictionaries", "N DIRECTION", [](Line line) { return make<DictionariesCommand>(listOf(line)); }, true},
    {"dictionary"},
    {"dictionary add", "N DIRECTION NAMES...",
     [](Line line) { return make<AddDictionariesCommand>(listOf(line), line.words.names); }, true},
    {"dictionary remove", "N DIRECTION NAMES...",
     [](Line line) { return make<RemoveDictionariesCommand>(listOf(line), line.words.names); }, true},
    {"dictionary move", "N DIRECTION NAME POSITION",
     [](Line line) { return make<MoveDictionaryCommand>(listOf(line), line.words.name, line.words.position); }, true},
    {"new", "DIRECTION KIND NAME",
     [](Line line) { return make<NewDictionaryCommand>(directionOf(line), kindOf(line), line.words.name); }, true},
    {"history", "[ID]", [](Line line) { return make<HistoryCommand>(line.words.id); }, true},
    {"restore", "ID [N]", [](Line line) { return make<RestoreCommand>(line.words.id, line.words.style); }, true},
    {"addins", "", [](Line) { return make<AddinsCommand>(); }, true},
    {"addin"},
    {"addin install", "NAME [VERSION]", [](Line line) { return make<AddinEditCommand>(addinOf(line), true); }, true},
    {"addin remove", "NAME [VERSION]", [](Line line) { return make<AddinEditCommand>(addinOf(line), false); }, true},
    {"addin search", "FOLDER", [](Line line) { return make<AddinSearchCommand>(line.words.folder); }, true},
    {"tool-list", "[TOOL]", [](Line line) { return make<ToolListCommand>(line.words.tool); }, true},
    {"open", "CODE", [](Line line) { return make<OpenCommand>(wordsForWindow(line), line.words.code); }},
    {"engine"},
    {"engine status", "", [](Line) { return make<EngineStatusCommand>(); }, true},
    {"engine push", "", [](Line) { return make<EnginePushCommand>(); }, true},
    {"engine pull", "", [](Line) { return make<EnginePullCommand>(); }, true},
    {"doctor", "", [](Line) { return make<DoctorCommand>(); }, true, false},
    {"run", "[FILE]"},
};

CommandTable tableFor(CommandLine& line) {
  VerbWords& words = line.words;
  CommandTable table{"tarvoctl",
                     "AboutText",
                     commonOptions(line, Front::console),
                     {{"N", &words.style, {}, "Argument.N"},
                      {"KEY=VALUE", &words.pairs, {}, "Argument.PAIR"},
                      {"DIRECTION", &words.direction, {{"ej", "je"}}, "Argument.DIRECTION"},
                      {"KIND", &words.kind, {{"user", "memory"}}, "Argument.KIND"},
                      {"NAME", &words.name, {}, "Argument.NAME"},
                      {"NAMES", &words.names, {}, "Argument.NAMES"},
                      {"TOOLS", &words.tools, {}, "Argument.TOOLS"},
                      {"POSITION", &words.position, wholeNumber(), "Argument.POSITION"},
                      {"VERSION", &words.version, {}, "Argument.VERSION"},
                      {"FILE", &words.file, {}, "Argument.FILE"},
                      {"FOLDER", &words.folder, {}, "Argument.FOLDER"},
                      {"TOOL", &words.tool, {}, "Argument.TOOL"},
                      {"CODE", &words.code, {}, "Argument.CODE"},
                      {"ID", &words.id, {}, "Argument.ID"}},
                     {}};
  for (const Verb& verb : verbs) table.verbs.push_back({verb.words, std::string("Verb.") + verb.words, verb.arguments});
  return table;
}

// "dictionary N ej add NAME", the order of earlier versions, as "dictionary add N ej NAME".
std::vector<std::string> inTodaysOrder(std::vector<std::string> words) {
  const auto verb = std::ranges::find(words, "dictionary");
  if (words.end() - verb < 4) return words;
  const std::string& edit = verb[3];
  if (edit == "add" || edit == "remove" || edit == "move") std::rotate(verb + 1, verb + 3, verb + 4);
  return words;
}

void choose(CommandLine& line, const Verb& verb) {
  line.needsResources = verb.needsResources;
  if (verb.make != nullptr) line.makeCommand = [&line, make = verb.make] { return make(line); };
  if (verb.make == nullptr && !line.words.file.empty()) line.script = line.words.file;
}

}  // namespace

std::optional<ExitStatus> readCommandLine(CommandLine& line, const std::vector<std::string>& words, std::ostream& out,
                                          std::ostream& err) {
  const CommandTable table = tableFor(line);
  WordsRead read = readWords(table, inTodaysOrder(words));
  if (line.version) {
    out << "tarvoctl " TARVO_VERSION "\n";
    return ExitStatus::done;
  }
  if (line.help) {
    out << helpText(table, read.verb, textsToTell(line));
    return ExitStatus::done;
  }
  const Verb* verb = std::ranges::find(verbs, read.verb, &Verb::words);
  if (!read.error && line.json && !verb->mayAnswerJson) {
    read.error = {UsageError::Kind::unexpected, "--json", {}, synopsis(table, read.verb), ""};
  }
  if (read.error) {
    err << told(*read.error, table.program, textsToTell(line)) << '\n';
    return ExitStatus::usage;
  }
  choose(line, *verb);
  return std::nullopt;
}

}  // namespace tarvo
