// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "dict/change_words.h"

#include <optional>

#include "dict/display_names.h"
#include "platform/services/texts.h"
#include "style/style_store.h"

namespace tarvo {

namespace {

using Kind = StyleChange::Kind;

std::string meaningOf(const StyleChange& change, const std::optional<PropertyList>& value, const Texts& texts) {
  return value ? tarvo::meaningOf(change.key, *value, texts) : texts.localized("Change.nothing");
}

std::string textIn(const std::optional<PropertyList>& value) {
  return value && value->string() != nullptr ? *value->string() : std::string();
}

std::string inWords(const StyleChange& change, const Texts& texts) {
  switch (change.kind) {
    case Kind::added: return texts.localized("Change.added");
    case Kind::removed: return texts.localized("Change.removed");
    case Kind::moved: return texts.localized("Change.moved");
    case Kind::renamed: return filledIn(texts.localized("Change.renamed"), textIn(change.before));
    case Kind::dictionaryAdded: return "+ " + dictionaryDisplayName(change.key, texts);
    case Kind::dictionaryRemoved: return "− " + dictionaryDisplayName(change.key, texts);
    case Kind::dictionariesMoved: return texts.localized("Change.dictionariesMoved");
    case Kind::value: break;
  }
  return labelOf(change.key, texts) + " " + meaningOf(change, change.before, texts) + " → " +
         meaningOf(change, change.after, texts);
}

std::string joined(const std::vector<std::string>& words, const char* between) {
  std::string text;
  for (const std::string& one : words) text += (text.empty() ? "" : between) + one;
  return text;
}

// A menu has room for one thing: the first one that was done.
std::string nameOfChange(const StyleChange& change, const Texts& texts) {
  switch (change.kind) {
    case Kind::dictionaryAdded: return filledIn(texts.localized("Edit.add"), dictionaryDisplayName(change.key, texts));
    case Kind::dictionaryRemoved:
      return filledIn(texts.localized("Edit.remove"), dictionaryDisplayName(change.key, texts));
    case Kind::dictionariesMoved: return texts.localized("Edit.move");
    case Kind::renamed: return filledIn(texts.localized("Edit.rename"), textIn(change.before));
    default: return filledIn(texts.localized("Edit.option"), labelOf(change.key, texts));
  }
}

}  // namespace

std::string labelOf(const std::string& key, const Texts& texts) {
  const std::string* label = texts.find("Label." + key);
  return label != nullptr ? *label : key;
}

std::string meaningOf(const std::string& key, const PropertyList& value, const Texts& texts) {
  const std::string stored = value.string() != nullptr ? *value.string() : std::to_string(value.integerValue());
  if (const std::string* meaning = texts.find(key + "." + stored)) return *meaning;
  return value.string() != nullptr || value.hasIntegerValue() ? stored : texts.localized("Change.otherValue");
}

std::vector<std::string> changesInWords(const std::vector<StyleChange>& changes, const Texts& texts) {
  std::vector<std::string> words;
  const StyleChange* former = nullptr;
  for (const StyleChange& change : changes) {
    const bool isOfDivider = change.style == texts.localized(keyNameSeparator);
    if (isOfDivider && change.kind == Kind::value) continue;  // no translation uses them
    const bool isSameStyle = former != nullptr && former->style == change.style && change.kind != Kind::moved;
    if (isSameStyle) {
      words.back() += "; " + inWords(change, texts);
    } else {
      words.push_back((change.style.empty() ? "" : change.style + ": ") + inWords(change, texts));
    }
    former = &change;
  }
  return words;
}

std::string changesInOneLine(const std::vector<StyleChange>& changes, const Texts& texts) {
  return joined(changesInWords(changes, texts), "; ");
}

std::string changesInLines(const std::vector<StyleChange>& changes, std::size_t most, const Texts& texts) {
  std::vector<std::string> words = changesInWords(changes, texts);
  if (words.size() > most) {
    const std::string others = std::to_string(words.size() - most);
    words.resize(most);
    words.push_back(filledIn(texts.localized("History.more"), others));
  }
  return joined(words, "\n");
}

std::string nameOfEdit(const StoredChange& change, const Texts& texts) {
  if (change.kind == ChangeKind::import) return texts.localized("Edit.import");
  if (change.kind == ChangeKind::restore) return texts.localized("Edit.restore");
  if (change.kind == ChangeKind::merge) return texts.localized("Edit.merge");
  if (change.what == StoredChange::What::selection) return texts.localized("Edit.tool");
  const auto changes = recordChanges(change.before, change.after);
  return changes.empty() ? texts.localized("Edit.style") : nameOfChange(changes.front(), texts);
}

}  // namespace tarvo
