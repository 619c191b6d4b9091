// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <utility>

#include "app/app_controller.h"
#include "app/interface.h"
#include "app/rooms.h"
#include "dict/import_findings.h"
#include "platform/services/notification_center.h"
#include "platform/services/notification_names.h"
#include "platform/services/texts.h"
#include "style/caller_requests.h"
#include "style/style_records.h"

// What reaches the style pane from outside: style files, the engine's styles, requests of other tools.
namespace tarvo {

namespace {

// The engine is not told of writes while its own styles are shown.
class Awakening {
 public:
  explicit Awakening(StyleStore& store) : store_(store) { store_.setAwakening(true); }
  ~Awakening() { store_.setAwakening(false); }
  Awakening(const Awakening&) = delete;
  Awakening& operator=(const Awakening&) = delete;

 private:
  StyleStore& store_;
};

std::vector<std::string> namesOf(const StyleStore& store) {
  std::vector<std::string> names;
  if (const Array* styles = store.getAllStyle()) {
    for (const PropertyList& style : *styles) names.push_back(recordName(style));
  }
  return names;
}

}  // namespace

void AppController::importStyle() {
  if (const std::optional<DiskPath> path = rooms_.exchange.chooseImportFile()) readImportStyle(*path);
}

bool AppController::readImportStyle(const DiskPath& path) {
  const std::optional<Dictionary> record = readForImport(path);
  return record && installStyle(*record, path);
}

std::optional<Dictionary> AppController::readForImport(const DiskPath& path) {
  return rooms_.exchange.readForImport(path);
}

bool AppController::installStyle(const Dictionary& record, const DiskPath& from) {
  const PopUpButton& stylePopup = interface_.style.stylePopup;
  const int index = stylePopup.indexOfSelectedItem();
  const std::size_t before = rooms_.undoSteps.mark();
  if (!rooms_.exchange.install(record, index, stylePopup.titleOfSelectedItem())) return false;
  rooms_.news.showImported([&] { rooms_.display.setupStyleData2(index); });
  for (const Direction direction : bothDirections) rooms_.lists.updateButton(direction);
  rooms_.notices.tell(doneNotice(importedInWords(record, index, from), before, rooms_.undoSteps.mark()));
  return true;
}

// In one notice, so that what did not come along stands beside the way back.
std::string AppController::importedInWords(const Dictionary& record, int index, const DiskPath& from) const {
  const Texts& texts = services_.texts;
  const DictController::Services dictionaries{services_.files, texts, services_.bundle, services_.paths,
                                              services_.locations};
  std::string text =
      filledIn(texts.localized("Notice.imported"), from.name(), interface_.style.stylePopup.titleOfSelectedItem());
  const ImportFindings found =
      importFindings(dictionaries, record, rooms_.store.getStyleAtIndex(index).value_or(record));
  const char* between = " ";
  for (const std::string& sentence : importSentences(found, texts)) {
    text += std::exchange(between, "; ") + sentence;
  }
  return text;
}

void AppController::sendPlist() {
  const std::vector<std::string> names = namesOf(rooms_.store);
  if (rooms_.store.reconcile() != StyleStore::Reconciled::replaced) return;  // nobody waits for what was not taken
  const Awakening awakening(rooms_.store);
  showStyles();
  rooms_.undo.stylesCameFromElsewhere(names == namesOf(rooms_.store));
}

void AppController::handleAppleEvent(const std::optional<std::string>& bytes) {
  if (const std::optional<CallerRequest> request = decodeCallerRequest(bytes, getOSVersion())) answerCaller(*request);
}

void AppController::handleCallerCode(std::string_view code) { answerCaller(callerRequestForCode(code)); }

void AppController::answerCaller(const CallerRequest& request) {
  if (!request.tool) return notifications_.post(changeOfficeToolbarNotification, "style");
  rooms_.chooser.setSelectSeg(placeOf(*request.tool));
  notifications_.post(changeToolbarNotification, "style");
}

}  // namespace tarvo
