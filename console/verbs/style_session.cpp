// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/style_session.h"

#include <algorithm>

#include "app/product.h"
#include "app/service_words.h"
#include "app/style_loading.h"
#include "app/user_files.h"
#include "console/verbs/dictionary_services.h"
#include "console/verbs/style_name.h"
#include "dict/merge_knowledge.h"
#include "platform/services/engine.h"
#include "style/former_words.h"
#include "style/style_records.h"

namespace tarvo {

StyleSession::StyleSession(Console& console)
    : console_(console),
      engine_(console.product.makeEngine(console.product.files())),
      defaults_(console.product.files(), userDefaultsPath(console.product.locations())),
      earlier_(console.product.files(), console.product.locations().inHome(gEarlierStyles)),
      store_(console.product.files(), *engine_, defaults_, console.product.locations().inHome(gStylePath),
             console.product.locations().onDisk(ProductPath(std::string(gAppSupportStylePlist))), &earlier_),
      medical_({console.product.files(), console.product.locations(), console.product.paths(), console.product.texts(),
                defaults_, store_}),
      lists_(store_, dictionaryServices(console.product)),
      client_({*engine_,
               store_,
               defaults_,
               console.product.locations().onDisk(ProductPath(std::string(gAppSupportStylePlist))),
               earlier_.folder(),
               [this] { return mergeKnowledge(dictionaryServices(console_.product), medical_); },
               {}}) {
  store_.writeOnlyChanges();
  store_.didWrite = [this] { noteWrite(); };
}

StyleSession::~StyleSession() = default;

const std::string& StyleSession::pathOfStyles() const { return store_.path().text(); }

std::optional<Problem> StyleSession::open(Needs needs) {
  Product& product = console_.product;
  if (std::optional<Problem> failure = takeLock(console_)) return failure;
  noteUnread(console_, defaults_);
  const LoadedStyles loaded = loadStyles(store_, medical_, product.files(), product.paths());
  if (const std::optional<Failure>& unread = store_.unread(); unread && needs == Needs::readable && !console_.reseed) {
    return Refusal{pathOfStyles(), "Refusal.UnreadableStyles", failureParts(*unread, console_.textsToTell()).cause};
  }
  if (loaded.failure && needs != Needs::nothing) return *loaded.failure;
  inserted_ = loaded.inserted;
  if (loaded.isFileAbsent && needs == Needs::readable) noteAbsentStyles(console_);
  if (needs == Needs::readable) {
    mended_ = {goneDictionaries(dictionaryServices(product), store_.root()), loaded.filledIn};
  }
  return std::nullopt;
}

std::expected<int, Problem> StyleSession::openOn(const std::string& style, Needs needs) {
  if (const std::optional<UsageError> error = wrongStyleWord(style)) return std::unexpected(*error);
  if (std::optional<Problem> failure = open(needs)) return std::unexpected(std::move(*failure));
  return styleNamed(store_.root(), console_.product.texts(), style, false);
}

ExitStatus StyleSession::edit(const std::string& style, const Operation& operation, Needs needs) {
  const std::expected<int, Problem> index = openOn(style, needs);
  return index ? editAt(*index, operation) : tell(console_, index.error());
}

ExitStatus StyleSession::editAt(int index, const Operation& operation) {
  const std::optional<Dictionary> before = store_.getStyleAtIndex(index);
  const Dictionary* selection = store_.getSelection();
  const Dictionary chosen = selection != nullptr ? *selection : Dictionary{};
  if (const std::optional<Problem> failure = operation(index)) return tell(console_, *failure);
  const std::optional<Dictionary> after = store_.getStyleAtIndex(index);
  const bool isChanged = after != before || (selection != nullptr && chosen != *store_.getSelection());
  return finish(isChanged && before ? std::vector{styleName(*before)} : std::vector<std::string>());
}

ExitStatus StyleSession::read(const std::string& style, const Operation& operation) {
  const std::expected<int, Problem> index = openOn(style);
  if (!index) return tell(console_, index.error());
  if (const std::optional<Problem> failure = operation(*index)) return tell(console_, *failure);
  tellUnread("Refusal.ProductsStyles");
  noteMended(console_, store_.path(), mended_);
  const std::optional<Dictionary> record = store_.getStyleAtIndex(*index);
  say(console_, {{record ? styleName(*record) : style}, std::nullopt});
  return ExitStatus::done;
}

// And the former styles, where they were another program's, and where they could not be kept as they should.
void StyleSession::noteWrite() {
  written_ = true;
  const Replaced& replaced = store_.replaced();
  if (!replaced.wasForeign && !replaced.unkept) return;  // most writes have nothing to tell
  const Texts texts = console_.textsToTell();
  if (replaced.wasForeign) note(console_, pathOfStyles(), foreignSentence(replaced.kept, replaced.beside, texts));
  if (!replaced.unkept || std::exchange(toldUnkept_, true)) return;
  note(console_, pathOfStyles(), unkeptSentence(replaced.kept, *replaced.unkept, texts));
}

std::optional<Problem> StyleSession::writeLoaded() {
  if (store_.isPending() && !written_) store_.writeTarvoStylePlist();
  if (const std::optional<Failure>& unsaved = store_.unsaved()) return *unsaved;
  if (!inserted_.empty()) medical_.remember(inserted_);
  return std::nullopt;
}

void StyleSession::tellUnread(const char* key) {
  const std::optional<Failure>& unread = store_.unread();
  if (unread) note(console_, {pathOfStyles(), key, failureParts(*unread, console_.textsToTell()).cause});
}

ExitStatus StyleSession::finish(std::vector<std::string> changed) {
  if (const std::optional<Problem> failure = writeLoaded()) return tell(console_, *failure);
  tellUnread(unreadKey_);
  noteWhatStaysGone();
  const std::optional<bool> registered = written_ ? registerStyles() : std::nullopt;
  defaults_.synchronize();  // whose the styles are by now
  say(console_, {std::move(changed), registered});
  if (written_) earlier_.thin();
  return registered == false && engine_->form() != EngineForm::local ? ExitStatus::waiting : ExitStatus::done;
}

// Names that the operation took out have been told by it.
void StyleSession::noteWhatStaysGone() {
  const bool isNothingGone = std::ranges::all_of(mended_.gone, &Names::empty);
  if (isNothingGone) return noteMended(console_, store_.path(), mended_);
  const NamesByDirection left = goneDictionaries(dictionaryServices(console_.product), store_.root());
  for (std::size_t i = 0; i < left.size(); ++i) {
    std::erase_if(mended_.gone[i], [&names = left[i]](const std::string& name) {
      return std::ranges::find(names, name) == names.end();
    });
  }
  noteMended(console_, store_.path(), mended_);
}

std::optional<bool> StyleSession::registerStyles() {
  if (engine_->form() == EngineForm::none) return std::nullopt;
  store_.registerStyles();
  waitUntilSent();
  if (const std::optional<Failure>& unwritten = defaults_.unwritten()) note(console_, *unwritten);
  const std::optional<Result<>> outcome = store_.registration();
  if (!outcome) return std::nullopt;
  if (!*outcome) {
    const char* words = store_.wasLeftAlone() ? "Refusal.ServiceLeftAlone" : "Refusal.Waiting";
    note(console_, {service(), words, failureParts(outcome->error(), console_.textsToTell()).cause});
  }
  return outcome->has_value();
}

// The last chance of this program to bring them there, and to tell what became of them.
void StyleSession::waitUntilSent() {
  engine_->waitUntilSent(Engine::verbPatience);
  store_.settleRegistration();
  const Texts texts = console_.textsToTell();
  for (const std::string& sentence : sentencesOf(client_.takeNews(), texts)) note(console_, service(), sentence);
}

std::string StyleSession::service() const { return serviceName(console_.product, *engine_); }

std::string serviceName(const Product& product, const Engine& engine) {
  const std::string url = product.engineURL();
  return url.empty() ? std::string(wordOf(engine.form())) : url;
}

}  // namespace tarvo
