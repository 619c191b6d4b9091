// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/history/style_news.h"

#include <utility>

#include "app/history/notices.h"
#include "app/service_client.h"
#include "app/service_words.h"
#include "dict/change_words.h"
#include "dict/display_names.h"
#include "dict/load_findings.h"
#include "platform/services/failure_text.h"
#include "platform/services/run_loop.h"
#include "platform/services/texts.h"
#include "style/former_words.h"
#include "style/style_changes.h"
#include "style/style_history.h"
#include "style/undo_steps.h"

namespace tarvo {

namespace {

using Kind = StyleChange::Kind;

// The dictionaries that the change has taken out, as people call them; "" when it did anything else.
std::string removedDictionaries(const StoredChange& change, const Texts& texts) {
  if (change.what != StoredChange::What::record) return "";
  std::string names;
  for (const StyleChange& one : recordChanges(change.before, change.after)) {
    if (one.kind != Kind::dictionaryRemoved) return "";
    names += (names.empty() ? "" : ", ") + dictionaryDisplayName(one.key, texts);
  }
  return names;
}

bool isUnderWay(const Result<>& outcome) { return !outcome && outcome.error().cause == Reason::onItsWay; }

bool isServiceMissing(const Failure& failure) { return failure.cause == Reason::noService; }

}  // namespace

StyleNews::StyleNews(const Collaborators& with) : with_(with) {
  with_.store.didChange = [this](const StoredChange& change) { didChange(change); };
  with_.store.didWrite = [this] { didWrite(); };
  with_.store.didRegister = [this] { didRegister(); };
}

StyleNews::~StyleNews() {
  with_.store.didChange = nullptr;
  with_.store.didWrite = nullptr;
  with_.store.didRegister = nullptr;
}

void StyleNews::didLoad(const std::vector<std::string>& defaults, bool isFileAbsent) {
  const Texts& texts = with_.texts;
  if (!defaults.empty()) with_.notices.tell({.text = defaultsSentence(defaults, texts)});
  if (const std::optional<Failure>& unread = with_.store.unread()) {
    const std::string cause = failureParts(*unread, texts).cause;
    with_.notices.tell(
        {.text = filledIn(texts.localized("Notice.unreadable"), cause), .offer = Notice::Offer::restore});
  } else if (isFileAbsent && newestWhole(with_.earlier)) {
    with_.notices.tell({.text = filledIn(texts.localized("Notice.absent"), with_.store.path().text()),
                        .offer = Notice::Offer::restore});
  }
}

void StyleNews::showImported(const std::function<void()>& show) {
  importing_ = true;
  show();
  importing_ = false;
}

void StyleNews::didChange(const StoredChange& change) {
  const bool isStep = with_.steps.note(change);
  const std::string removed = removedDictionaries(change, with_.texts);
  if (change.kind == ChangeKind::repair && !removed.empty() && !importing_) {
    const auto changes = styleChanges(Array{change.before}, Array{change.after});
    with_.notices.tell(
        {.text = filledIn(with_.texts.localized("Notice.repaired"), changesInOneLine(changes, with_.texts))});
  } else if (isStep && change.kind == ChangeKind::edit && !removed.empty()) {
    with_.notices.tell({.text = filledIn(with_.texts.localized("Notice.removed"), removed),
                        .offer = Notice::Offer::undo,
                        .step = with_.steps.mark()});
  }
}

void StyleNews::didWrite() {
  const std::optional<Failure>& unsaved = with_.store.unsaved();
  with_.notices.setStanding(
      unsaved ? std::optional(Notice{.text = with_.texts.localized("NotSavedYet") + failureText(*unsaved, with_.texts)})
              : std::nullopt);
  if (!unsaved && std::exchange(toldStanding_, StandingOfFile::ours) == StandingOfFile::gone) {
    with_.notices.tellAside({.text = with_.texts.localized("Notice.storedAgain")});
  }
  tellForeignSet();
  const Replaced& replaced = with_.store.replaced();
  thinLater(replaced);
  if (!replaced.unkept || replaced.unkept == toldUnkept_) return;
  toldUnkept_ = replaced.unkept;
  with_.notices.tellAside({.text = unkeptSentence(replaced.kept, *replaced.unkept, with_.texts)});
}

// Also for a set of which this program has seen nothing yet.
void StyleNews::thinLater(const Replaced& replaced) {
  constexpr int writesBetween = 64;
  const std::optional<EarlierSet> kept = earlierSetNamed(replaced.kept);
  const bool isUnseen = kept && kept->fingerprint.empty();
  if (writes_++ % writesBetween != 0 && !isUnseen) return;
  with_.runLoop.post([this, alive = std::weak_ptr(alive_)] {
    if (!alive.expired()) with_.earlier.thin();
  });
}

void StyleNews::tellForeignSet() {
  const std::optional<StyleStore::ForeignSet>& foreign = with_.store.foreign();
  if (!foreign || foreign->number == toldForeign_) return;
  toldForeign_ = foreign->number;
  const std::optional<EarlierSet> set = earlierSetNamed(foreign->kept);
  with_.notices.tell({.text = foreignSentence(foreign->kept, foreign->beside, with_.texts),
                      .offer = set ? Notice::Offer::merge : Notice::Offer::none,
                      .earlierSet = set ? set->id : std::string()});
}

void StyleNews::look() {
  const StandingOfFile standing = with_.store.standingOfFile();
  if (std::exchange(toldStanding_, standing) == standing) return;
  if (standing == StandingOfFile::changed) {
    with_.notices.tell({.text = with_.texts.localized("Notice.foreign"), .offer = Notice::Offer::merge});
  } else if (standing == StandingOfFile::gone) {
    with_.notices.tell({.text = filledIn(with_.texts.localized("Notice.gone"), with_.store.path().text())});
  }
}

void StyleNews::hear(const ServiceNews& heard) {
  with_.store.settleRegistration();
  didRegister();
  for (const std::string& sentence : sentencesOf(heard, with_.texts)) {
    with_.notices.tell({.text = sentence, .offer = heard.keptTheirs ? Notice::Offer::restore : Notice::Offer::none});
  }
}

void StyleNews::didRegister() {
  const std::optional<Result<>> outcome = with_.store.registration();
  if (!outcome || isUnderWay(*outcome)) return;
  const bool isTold = !*outcome && !isServiceMissing(outcome->error());
  const std::string cause = isTold ? failureCauseText(outcome->error(), with_.texts) : std::string();
  if (cause == toldService_) return;
  toldService_ = cause;
  if (with_.store.wasLeftAlone()) {
    return with_.notices.tell(
        {.text = with_.texts.localized("Notice.serviceLeftAlone"), .offer = Notice::Offer::restore});
  }
  with_.notices.tellAside({.text = isTold ? filledIn(with_.texts.localized("Notice.service"), cause)
                                          : with_.texts.localized("Notice.serviceAgain")});
}

}  // namespace tarvo
