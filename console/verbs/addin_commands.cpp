// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/addin_commands.h"

#include <algorithm>

#include "app/product.h"
#include "app/product_defaults.h"
#include "app/program.h"
#include "console/verbs/addin_reading.h"
#include "console/verbs/text_table.h"
#include "console/verbs/verb_program.h"
#include "platform/plist/json.h"
#include "platform/services/failure_text.h"
#include "platform/services/file_service.h"

namespace tarvo {

namespace {

using namespace addin_keys;
using Rows = std::vector<AddinEntry>;

Json jsonOf(const AddinEntry& row, const char* table, const Product& product) {
  const AddinPlaces places = placesOf(row, product.locations(), product.files());
  return Json::Object{{"table", table},
                      {"name", addinText(row, appName)},
                      {"version", addinText(row, appVersion)},
                      {"creator", addinText(row, appCreator)},
                      {"path", product.locations().shown(places.application)},
                      {"folder", product.locations().shown(places.folder)},
                      {"installed", isMarkedInstalled(row)}};
}

std::vector<std::string> lineOf(const AddinEntry& row, const char* first, const Product& product) {
  const DiskPath application = placesOf(row, product.locations(), product.files()).application;
  return {first, addinText(row, appName), addinText(row, appVersion), product.locations().shown(application)};
}

std::optional<AddinsRead> read(Console& console) {
  std::optional<AddinsRead> addins = readAddins(console.product);
  if (!addins) console.err << "there is no list of the applications that take add-ins\n";
  return addins;
}

struct Place {
  int tag = 0, row = -1;  // of the table; -1: none
};

struct Match {
  int count = 0;
  Place place;  // of the first
};

// What a user asks for. The name may also be the path of the application: as listed, as remembered, or on the disk.
struct Asked {
  std::string name, version;
  const Product& product;
  bool means(const AddinEntry& row) const {
    if (!version.empty() && addinText(row, appVersion) != version) return false;
    const DiskPath path = placesOf(row, product.locations(), product.files()).application;
    return name == addinText(row, appName) || name == addinText(row, appPath) || name == path.text() ||
           name == product.locations().shown(path);
  }
};

// A search may add an application twice. Asked for by its path, it makes no difference which row is ticked.
bool isRepeated(const AddinEntry& row, const AddinEntry& first, const std::string& name) {
  return addinText(row, appName) != name && addinText(row, appPath) == addinText(first, appPath) &&
         addinText(row, installFolderPath) == addinText(first, installFolderPath) &&
         addinItemName(row) == addinItemName(first);
}

Match findRow(const Rows& office, const Rows& mail, const Asked& asked) {
  Match match;
  const AddinEntry* first = nullptr;
  int tag = 0;
  for (const Rows* rows : {&office, &mail}) {
    for (std::size_t i = 0; i < rows->size(); ++i) {
      const AddinEntry& row = (*rows)[i];
      if (!asked.means(row) || (first != nullptr && isRepeated(row, *first, asked.name))) continue;
      if (match.count++ > 0) continue;
      first = &row;
      match.place = {tag, static_cast<int>(i)};
    }
    ++tag;
  }
  return match;
}

// Why the name means no row, or several; "" when it means one.
std::string problemWith(const Match& match, const Asked& asked) {
  const std::string words = asked.version.empty() ? asked.name : asked.name + ", version " + asked.version;
  if (match.count == 0) return "there is no add-in for " + words;
  if (match.count == 1) return {};
  return "there are " + std::to_string(match.count) + " rows for " + words +
         "; name one by the path of its application";
}

}  // namespace

ExitStatus AddinsCommand::run(Console& console) {
  const std::optional<AddinsRead> addins = read(console);
  if (!addins) return ExitStatus::refused;
  const Product& product = console.product;
  Json::List list;
  std::vector<std::vector<std::string>> lines;
  for (const auto& [rows, table] : {std::pair(&addins->office, "office"), std::pair(&addins->mail, "mail")}) {
    for (const AddinEntry& row : *rows) {
      list.push_back(jsonOf(row, table, product));
      lines.push_back(lineOf(row, isMarkedInstalled(row) ? "installed" : "-", product));
    }
  }
  if (json_) {
    console.out << writeJson(list) << '\n';
  } else {
    writeTable(console.out, lines);
  }
  return ExitStatus::done;
}

ExitStatus AddinTickCommand::run(Console& console) {
  const std::optional<AddinsRead> addins = read(console);
  if (!addins) return ExitStatus::refused;
  const Asked asked{name_, version_, console.product};
  const Match known = findRow(addins->office, addins->mail, asked);
  if (const std::string problem = problemWith(known, asked); !problem.empty()) {
    console.err << problem << '\n';
    return ExitStatus::usage;
  }
  VerbProgram verb(console);
  return verb.run([&](Program& program, Hand& hand) {
    AddinLists& lists = program.rooms().addins;
    const Match match = findRow(lists.fOfficeAddinArray(), lists.fMailAddinArray(), asked);
    // The start makes a folder without which a mail program is not listed; that can fail.
    if (const std::string problem = problemWith(match, asked); !problem.empty()) return verb.refuse(problem);
    const auto row = [&]() -> const AddinEntry& {
      return (*lists.rowsOf(match.place.tag))[static_cast<std::size_t>(match.place.row)];
    };
    if (isMarkedInstalled(row()) == install_) {
      return verb.refuse(name_ + (install_ ? " has its add-in already" : " has no add-in"));
    }
    AddinOutlets& outlets = program.interface().addins;
    hand.tick(match.place.tag == 0 ? outlets.officeTableView : outlets.mailTableView, match.place.row, install_);
    if (isMarkedInstalled(row()) == install_) return;
    const TextField& info = match.place.tag == 0 ? outlets.officeInfoField : outlets.mailinfoField;
    const TextField& reason = match.place.tag == 0 ? outlets.officeReasonField : outlets.mailReasonField;
    verb.refuse(info.stringValue() + " (" + reason.stringValue() + ")");
  });
}

ExitStatus AddinSearchCommand::run(Console& console) {
  const DiskPath folder = absolutePath(folder_);
  const Result<FileService::Kind> kind = console.product.files().kind(folder);
  if (kind != FileService::Kind::folder) {
    console.err << (kind ? "there is no folder " + folder_ : failureText(kind.error(), console.product.texts()))
                << '\n';
    return ExitStatus::usage;
  }
  VerbProgram verb(console);
  verb.answerFilePanels(folder);
  return verb.run([&](Program& program, Hand& hand) {
    const auto names = console.product.files().list(folder);
    if (!names) return verb.refuse(failureText(names.error(), console.product.texts()));
    AddinLists& lists = program.rooms().addins;
    const std::size_t office = lists.fOfficeAddinArray().size(), mail = lists.fMailAddinArray().size();
    hand.press(program.interface().addins.officeSearchButton);
    std::vector<std::vector<std::string>> lines;
    for (std::size_t i = office; i < lists.fOfficeAddinArray().size(); ++i) {
      lines.push_back(lineOf(lists.fOfficeAddinArray()[i], "added", console.product));
    }
    for (std::size_t i = mail; i < lists.fMailAddinArray().size(); ++i) {
      lines.push_back(lineOf(lists.fMailAddinArray()[i], "added", console.product));
    }
    writeTable(console.out, lines);
    if (lines.empty()) {
      console.err << "nothing was added: there is no application of Office 2011 in this folder that is not listed\n";
    }
  });
}

ExitStatus ToolListCommand::run(Console& console) {
  const auto tool = std::find(gAppCreatorArray.begin(), gAppCreatorArray.end(), tool_);
  if (!tool_.empty() && tool == gAppCreatorArray.end()) {
    console.err << "there is no tool " << tool_ << "; the tools are";
    for (const std::string_view code : gAppCreatorArray) console.err << ' ' << code;
    console.err << '\n';
    return ExitStatus::usage;
  }
  VerbProgram verb(console);
  return verb.run([&](Program& program, Hand& hand) {
    const ToolListFile& file = program.rooms().toolList;
    const int index = static_cast<int>(tool - gAppCreatorArray.begin());
    if (!tool_.empty()) hand.choose(program.interface().tools.officeToolPopup, index);
    if (!file.written()) verb.refuse(failureText(file.written().error(), console.product.texts()));
  });
}

}  // namespace tarvo
