// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/product.h"
#include "app/tool_switch.h"
#include "console/verbs/style_name.h"
#include "console/verbs/style_session.h"
#include "console/verbs/tool_list_command.h"
#include "platform/services/engine.h"
#include "style/sibling_tools.h"
#include "style/style_history.h"
#include "style/style_records.h"

// The session's exchanges with the style service.
namespace tarvo {

ExitStatus StyleSession::push() {
  if (const std::optional<Problem> failure = open()) return tell(console_, *failure);
  if (const std::optional<Problem> failure = writeLoaded()) return tell(console_, *failure);
  if (store_.root().array(keyNameStyle) == nullptr) {
    return tell(console_, Refusal{pathOfStyles(), "Refusal.NothingToPush", ""});
  }
  store_.endStandIn();
  store_.registerStyles();
  waitUntilSent();
  tellUnread("Refusal.Reseeded");
  return sayHandedOver(store_.registration().value_or(Result<>()));
}

ExitStatus StyleSession::restore(const EarlierSet& set, const Dictionary& earlier) {
  if (const std::optional<Problem> failure = open(Needs::nothing)) return tell(console_, *failure);
  const Dictionary before = store_.root();
  if (!restoreStyles(store_, earlier)) {
    return tell(console_, Failure{set.path.text(), Attempt::read, Reason::damaged});
  }
  unreadKey_ = "Refusal.RestoredOver";
  return finish(before == store_.root() ? std::vector<std::string>() : std::vector{pathOfStyles()});
}

ExitStatus StyleSession::restoreOne(const std::string& style, const EarlierSet& set, const Dictionary& earlier) {
  const std::string standardName = console_.product.texts().localized(nomalStyle);
  const Refusal notThere{set.id, "Refusal.NotAmongEarlier", style};
  if (const std::optional<UsageError> error = wrongStyleWord(style)) return tell(console_, *error);
  if (const std::optional<Problem> failure = open(Needs::any)) return tell(console_, *failure);
  const Dictionary& root = store_.unread() ? earlier : store_.root();
  const std::expected<int, Problem> index = styleNamed(root, console_.product.texts(), style, false);
  if (!index) return tell(console_, store_.unread() ? Problem(notThere) : index.error());
  if (!store_.unread()) {
    return editAt(*index, [&](int place) -> std::optional<Problem> {
      if (restoreStyle(store_, place, earlier, standardName)) return std::nullopt;
      return notThere;
    });
  }
  unreadKey_ = "Refusal.RestoredAmongProducts";
  const Dictionary& record = *(*earlier.array(keyNameStyle))[static_cast<std::size_t>(*index)].dictionary();
  addEarlierStyle(store_, *index, earlier, standardName);
  return finish({styleName(record)});
}

ExitStatus StyleSession::pull() {
  if (const std::optional<Problem> failure = open()) return tell(console_, *failure);
  const auto notPulled = [this](const Failure& why) {
    return tell(console_, Refusal{service(), "Refusal.NotPulled", failureParts(why, console_.textsToTell()).cause});
  };
  engine_->waitForAnswer(Engine::verbPatience);
  if (!engine_->checkConnectionWithCurl()) return notPulled(whyUnreached(*engine_));
  // Whatever the service holds is newer than what came from the product.
  if (store_.isStandIn()) defaults_.forget(lastUpdate);
  const Result<StyleStore::Reconciled> reconciled = store_.reconcile();
  if (!reconciled) return notPulled(reconciled.error());
  if (*reconciled == StyleStore::Reconciled::replaced) return finishTaking();
  waitUntilSent();
  const std::optional<Result<>> handedOver = store_.registration();
  if (!handedOver) return finish({});
  if (const std::optional<Problem> failure = writeLoaded()) return tell(console_, *failure);
  tellUnread("Refusal.Reseeded");
  return sayHandedOver(*handedOver);
}

ExitStatus StyleSession::finishTaking() {
  if (const std::optional<Problem> failure = keepTaken()) return tell(console_, *failure);
  waitUntilSent();
  tellUnread("Refusal.TakenOver");
  if (!console_.json) console_.out << "took " << stylesIn(store_.root()).size() << " styles\n";
  if (console_.json) say(console_, {{pathOfStyles()}, true});
  earlier_.thin();
  return ExitStatus::done;
}

ExitStatus StyleSession::sayHandedOver(const Result<>& outcome) {
  noteMended(console_, store_.path(), mended_);
  if (!outcome) {
    return tell(console_,
                Refusal{service(), "Refusal.NotPushed", failureParts(outcome.error(), console_.textsToTell()).cause});
  }
  if (console_.json) {
    say(console_, {{service()}, true});
  } else {
    console_.out << "handed over " << store_.root().array(keyNameStyle)->size() << " styles\n";
  }
  return ExitStatus::done;
}

// What the load has joined went with the former styles: it is not remembered, and joins the new ones at the next load.
// The window goes another way to the same end: it shows all styles before it switches, keeps what no file could take in
// memory until the next write, and its launch has written the tool list. Here the end of the verb is the last chance.
std::optional<Problem> StyleSession::keepTaken() {
  if (store_.getSelection() == nullptr) return Refusal{pathOfStyles(), "Refusal.TakenNotKept", ""};
  const Texts& texts = console_.product.texts();
  store_.setPending();
  const auto chooseStyle = [this](int index) -> Result<> {
    store_.setSelection(store_.getStyleAtIndex(index) ? index : -1);  // what the window's menu shows then
    if (const std::optional<Failure>& unsaved = store_.unsaved()) return *unsaved;
    return {};
  };
  const Result<> switched = switchTool(rememberedTool(defaults_, texts), store_, defaults_, texts, chooseStyle);
  if (!switched) return switched.error();
  if (const Result<> written = writeToolList(console_.product, defaults_); !written) return written.error();
  return std::nullopt;
}

}  // namespace tarvo
