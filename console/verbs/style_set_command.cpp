// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <algorithm>
#include <charconv>
#include <optional>

#include "app/product.h"
#include "app/program.h"
#include "console/script/hand.h"
#include "console/verbs/style_choice.h"
#include "console/verbs/style_commands.h"
#include "console/verbs/style_reading.h"
#include "console/verbs/verb_program.h"
#include "style/option_table.h"
#include "style/style_keys.h"

namespace tarvo {

namespace {

// What is to be chosen where: the place of the pop-up in its list and the item.
struct Edit {
  bool detailed;
  std::size_t popup;
  int item;
};

std::optional<Edit> indexEdit(std::string_view key, std::string_view value) {
  for (std::size_t i = 0; i < indexOptions().size(); ++i) {
    const IndexOption& option = indexOptions()[i];
    if (option.key != key) continue;
    int item = -1;
    const char* end = value.data() + value.size();
    if (std::from_chars(value.data(), end, item).ptr != end || value.empty()) return std::nullopt;
    if (item < 0 || item >= option.itemCount) return std::nullopt;
    return Edit{false, i, item};
  }
  return std::nullopt;
}

std::optional<Edit> detailEdit(std::string_view key, std::string_view value) {
  for (std::size_t i = 0; i < detailOptions().size(); ++i) {
    const DetailOption& option = detailOptions()[i];
    const int item = option.key == key ? option.tagForValue(value) : -1;
    if (item >= 0) return Edit{true, i, item};
  }
  return std::nullopt;
}

std::optional<std::vector<Edit>> readPairs(const std::vector<std::string>& pairs, std::ostream& err) {
  std::vector<Edit> edits;
  for (const std::string& pair : pairs) {
    const std::size_t equals = std::min(pair.find('='), pair.size());
    const std::string_view key = std::string_view(pair).substr(0, equals);
    const std::string_view value = std::string_view(pair).substr(std::min(equals + 1, pair.size()));
    std::optional<Edit> edit = indexEdit(key, value);
    if (!edit) edit = detailEdit(key, value);
    if (!edit) {
      err << "no control offers " << pair << '\n';
      return std::nullopt;
    }
    edits.push_back(*edit);
  }
  return edits;
}

// Whether option edits reach the style once it is chosen.
ExitStatus checkStyle(Console& console, int index) {
  if (const ExitStatus status = checkStyleCanBeChosen(console, index); status != ExitStatus::done) return status;
  const std::optional<Dictionary> root = readStyles(console.product);
  if (index == 0 || (root && root->dictionary(keyNameSelection) != nullptr)) return ExitStatus::done;
  console.err << "the style file remembers no choice of a style: options can be set for style 0 only\n";
  return ExitStatus::refused;
}

// Whether the record holds every half that is to be changed: a missing one is not made, and nobody would notice.
bool canTake(const std::optional<Dictionary>& record, const std::vector<Edit>& edits) {
  return record && std::all_of(edits.begin(), edits.end(), [&record](const Edit& edit) {
           return record->dictionary(halfKey(edit.detailed ? Direction::japaneseToEnglish
                                                           : indexOptions()[edit.popup].direction)) != nullptr;
         });
}

}  // namespace

ExitStatus StyleSetCommand::run(Console& console) {
  const std::optional<std::vector<Edit>> edits = readPairs(pairs_, console.err);
  if (!edits) return ExitStatus::usage;
  if (const ExitStatus status = checkStyle(console, index_); status != ExitStatus::done) return status;
  bool taken = true;
  const ExitStatus status = VerbProgram(console).run([&](Program& program, Hand& hand) {
    taken = canTake(program.rooms().store.getStyleAtIndex(index_), *edits);
    if (!taken) return;
    OptionOutlets& options = program.interface().options;
    const StyleChoice choice(program, hand, index_);
    for (const Edit& edit : *edits) {
      hand.choose(edit.detailed ? options.detailPopups[edit.popup] : options.indexPopups[edit.popup], edit.item);
    }
  });
  if (taken) return status;
  console.err << "style " << index_ << " is damaged: it lacks the direction of these options\n";
  return ExitStatus::refused;
}

}  // namespace tarvo
