// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/style_edit_commands.h"

#include <algorithm>

#include "app/product.h"
#include "app/product_defaults.h"
#include "app/user_files.h"
#include "console/verbs/dictionary_services.h"
#include "console/verbs/option_words.h"
#include "console/verbs/style_session.h"
#include "dict/import_findings.h"
#include "platform/plist/plist_writer.h"
#include "platform/services/locations.h"
#include "platform/text/text_rules.h"
#include "style/sibling_tools.h"
#include "style/style_edits.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

// The halves that a record must have for these values: a missing one is not made, and nobody would notice.
std::optional<Problem> lackedHalf(const Dictionary& record, const std::vector<OptionValue>& values) {
  for (const OptionValue& value : values) {
    if (record.dictionary(halfKey(value.direction)) != nullptr) continue;
    return Refusal{styleName(record), "Refusal.NoHalf", std::string(halfKey(value.direction))};
  }
  return std::nullopt;
}

}  // namespace

ExitStatus StyleSetCommand::run(Console& console) {
  const std::expected<std::vector<OptionValue>, UsageError> values = readOptionWords(pairs_);
  if (!values) return tell(console, values.error());
  StyleSession session(console);
  return session.edit(style_, [&](int index) -> std::optional<Problem> {
    if (auto failure = lackedHalf(*session.store().getStyleAtIndex(index), *values)) return failure;
    setOptions(session.store(), console.product.texts(), index, *values);
    return std::nullopt;
  });
}

ExitStatus StyleUseCommand::run(Console& console) {
  const std::vector<std::string> ids = toolIds(console.product.texts());
  for (const std::string& tool : tools_) {
    if (std::ranges::find(ids, tool) != ids.end()) continue;
    return tell(console, UsageError{UsageError::Kind::wrongValue, tool, ids, "", "TOOL"});
  }
  StyleSession session(console);
  return session.edit(style_, [&](int index) -> std::optional<Problem> {
    StyleStore& store = session.store();
    if (store.getSelection() == nullptr) {
      return Refusal{store.path().text(), "Refusal.NoSelection", ""};
    }
    store.choose(tools_, index);
    return std::nullopt;
  });
}

ExitStatus StyleRenameCommand::run(Console& console) {
  StyleSession session(console);
  return session.edit(style_, [&](int index) -> std::optional<Problem> {
    const std::string standardName = console.product.texts().localized(nomalStyle);
    if (index == 0) return Refusal{styleName(*session.store().getStyleAtIndex(0)), "Refusal.StandardStyle", ""};
    if (!canHoldText(trimmed(name_))) return Refusal{name_, "Refusal.UnkeepableStyleName", ""};
    const auto renamed = renameStyle(session.store(), index, name_, standardName);
    if (renamed) return std::nullopt;
    return Refusal{name_, renamed.error() == NameProblem::empty ? "Refusal.EmptyName" : "Refusal.TakenName", ""};
  });
}

ExitStatus StyleImportCommand::run(Console& console) {
  StyleSession session(console);
  const DiskPath file = absolutePath(file_);
  return session.edit(style_, [&](int index) -> std::optional<Problem> {
    std::expected<Dictionary, StyleFault> record = readStyle(console.product.files(), file);
    if (!record) return record.error();
    StyleStore& store = session.store();
    const std::string name = styleName(*store.getStyleAtIndex(index));
    const Result<> replaced = replaceStyle(store, index, *record, name);
    if (!replaced) return replaced.error();
    const ImportFindings found =
        importFindings(dictionaryServices(console.product), *record, *store.getStyleAtIndex(index));
    for (const std::string& words : importSentences(found, console.textsToTell())) note(console, name, words);
    return std::nullopt;
  });
}

ExitStatus StyleExportCommand::run(Console& console) {
  StyleSession session(console);
  const DiskPath file = absolutePath(file_);
  return session.read(style_, [&](int index) -> std::optional<Problem> {
    Product& product = console.product;
    Result<> written = ownFilesOf(product.files(), product.locations(), product.paths()).checkOther(file);
    if (written) written = writeStyleFile(session.store(), index, product.files(), file);
    return written ? std::nullopt : std::optional<Problem>(written.error());
  });
}

}  // namespace tarvo
