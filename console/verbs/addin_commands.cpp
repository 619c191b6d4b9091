// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/addin_commands.h"

#include <map>

#include "app/product.h"
#include "app/product_defaults.h"
#include "console/verbs/addin_session.h"
#include "console/verbs/refusal.h"
#include "console/verbs/style_reading.h"
#include "console/verbs/text_table.h"
#include "install/addin_diagnosis.h"
#include "platform/plist/json.h"
#include "platform/services/failure_text.h"

namespace tarvo {

namespace {

using namespace addin_keys;

// What is wrong with what is installed, or why it cannot be installed; "" when all is well.
std::string reasonOf(const AddinEntry& row, Product& product) {
  const AddinDiagnosis found = diagnoseAddin(row, product.files(), product.locations(), product.bundle());
  if (!found.faults.empty()) return failureText(found.faults.front(), product.texts());
  return found.obstacle && !found.isThere ? failureText(*found.obstacle, product.texts()) : "";
}

Json jsonOf(const AddinEntry& row, AddinKind kind, Product& product) {
  const AddinPlaces places = placesOf(row, product.locations(), product.files());
  return Json::Object{{"table", std::string(rowOf(kind).word)},
                      {"name", addinText(row, appName)},
                      {"version", addinText(row, appVersion)},
                      {"creator", addinText(row, appCreator)},
                      {"path", product.locations().shown(places.application)},
                      {"folder", product.locations().shown(places.folder)},
                      {"installed", isMarkedInstalled(row)},
                      {"reason", reasonOf(row, product)}};
}

std::vector<std::string> lineOf(const AddinEntry& row, const char* first, const Product& product) {
  const DiskPath application = placesOf(row, product.locations(), product.files()).application;
  return {first, addinText(row, appName), addinText(row, appVersion), product.locations().shown(application)};
}

std::vector<std::string> listingOf(const AddinEntry& row, Product& product) {
  std::vector<std::string> line = lineOf(row, isMarkedInstalled(row) ? "installed" : "-", product);
  const std::string fault = isMarkedInstalled(row) ? reasonOf(row, product) : std::string();
  if (!fault.empty()) line.push_back(fault);
  return line;
}

using RowCounts = std::map<AddinKind, std::size_t>;

RowCounts countRows(const AddinLists& lists) {
  RowCounts counts;
  for (const AddinKindRow& each : addinKindRows) counts[each.kind] = lists.rowsOf(each.kind).size();
  return counts;
}

std::vector<AddinEntry> rowsBehind(const AddinLists& lists, const RowCounts& known) {
  std::vector<AddinEntry> added;
  for (const auto& [kind, count] : known) {
    const std::vector<AddinEntry>& rows = lists.rowsOf(kind);
    added.insert(added.end(), rows.begin() + static_cast<std::ptrdiff_t>(count), rows.end());
  }
  return added;
}

}  // namespace

ExitStatus AddinsCommand::run(Console& console) {
  Product& product = console.product;
  AddinSession session(console.product);
  noteUnread(console, session.settings());
  noteUnreadStyles(console);
  if (const Result<> read = session.read(); !read) return tell(console, read.error());
  const AddinLists& lists = session.lists();
  Json::List list;
  std::vector<std::vector<std::string>> lines;
  for (const AddinKindRow& each : addinKindRows) {
    for (const AddinEntry& row : lists.rowsOf(each.kind)) {
      list.push_back(jsonOf(row, each.kind, product));
      lines.push_back(listingOf(row, product));
    }
  }
  if (console.json) {
    console.out << writeJson(list) << '\n';
  } else {
    writeTable(console.out, lines);
  }
  return ExitStatus::done;
}

ExitStatus AddinEditCommand::run(Console& console) {
  if (const std::optional<Problem> failure = takeLock(console)) return tell(console, *failure);
  AddinSession session(console.product);
  noteUnread(console, session.settings());
  noteUnreadStyles(console);
  if (const Result<> read = session.read(); !read) return tell(console, read.error());
  const auto place = addinNamed(session.lists(), console.product.locations(), name_);
  if (!place) return tell(console, place.error());
  const AddinEntry& row = session.lists().rowsOf(place->kind).at(static_cast<std::size_t>(place->row));
  const bool isSo = isMarkedInstalled(row) == install_;
  if (isSo && install_) {
    const std::vector<Failure> faults =
        faultsOf(row, console.product.files(), console.product.locations(), console.product.bundle());
    if (!faults.empty()) return tell(console, faults.front());
  }
  if (!isSo) {
    if (const Result<> done = session.setInstalled(*place, install_); !done) return tell(console, done.error());
    if (const Result<> stored = session.store(); !stored) return tell(console, stored.error());
  }
  say(console, {isSo ? std::vector<std::string>() : std::vector{addinText(row, appName)}, std::nullopt});
  return ExitStatus::done;
}

ExitStatus AddinSearchCommand::run(Console& console) {
  if (const std::optional<Problem> failure = takeLock(console)) return tell(console, *failure);
  AddinSession session(console.product);
  noteUnread(console, session.settings());
  noteUnreadStyles(console);
  if (const Result<> read = session.read(); !read) return tell(console, read.error());
  const RowCounts known = countRows(session.lists());
  const DiskPath folder = absolutePath(folder_);
  const Result<std::vector<Failure>> unread = session.searchFolder(folder);
  if (!unread) return tell(console, unread.error());
  for (const Failure& each : *unread) note(console, each);
  std::vector<std::string> names;
  std::vector<std::vector<std::string>> lines;
  for (const AddinEntry& row : rowsBehind(session.lists(), known)) {
    names.push_back(addinText(row, appName));
    lines.push_back(lineOf(row, "added", console.product));
  }
  if (names.empty()) {
    note(console, Refusal{folder.text(), "Refusal.NothingFound", ""});
  } else if (const Result<> stored = session.store(); !stored) {
    return tell(console, stored.error());
  }
  if (!console.json) writeTable(console.out, lines);
  say(console, {std::move(names), std::nullopt});
  return ExitStatus::done;
}

}  // namespace tarvo
