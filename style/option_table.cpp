// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/option_table.h"

#include <algorithm>
#include <string>

#include "platform/services/texts.h"
#include "style/style_keys.h"
#include "style/style_records.h"

namespace tarvo {

namespace {

constexpr Direction ej = Direction::englishToJapanese, je = Direction::japaneseToEnglish;

constexpr std::array<IndexOption, 8> indexTable{{{keyNameEJOpt1, ej, "ejOption1Popup", 0, 3},
                                                 {keyNameEJOpt2, ej, "ejOption2Popup", 1, 3},
                                                 {keyNameEJOpt3, ej, "ejOption3Popup", 2, 3},
                                                 {keyNameJEOpt1, je, "jeOption1Popup", 3, 5},
                                                 {keyNameJEOpt2, je, "jeOption2Popup", 4, 5},
                                                 {keyNameJEOpt3, je, "jeOption3Popup", 5, 4},
                                                 {keyNameJEOpt5, je, "jeOption5Popup", 7, 2, true},
                                                 {keyNameJEOpt4, je, "", 6, 2, true}}};

constexpr std::array<DetailOption, 36> detailTable{{
    {"PARS_SAHEN", "parsSahenPopup", {"present", "past"}, 2, 0, "Group.1"},
    {"number", "numberPopup", {"0", "1"}, 2, 0, "Group.5"},
    {"maru_num", "maru_numPopup", {"0", "1"}, 2, 0, "Group.5"},
    {"roma_num", "roma_numPopup", {"0", "1"}, 2, 0, "Group.5"},
    {"alphabet", "alphabetPopup", {"0", "1"}, 2, 0, "Group.5"},
    {"katakana", "katakanaPopup", {"0", "1"}, 2, 0, "Group.5"},
    {"kigou", "kigouPopup", {"0", "1"}, 2, 0, "Group.5"},
    {"KATA1", "kata1Popup", {"0", "1"}, 2, 1, "Group.6"},
    {"KATA2", "kata2Popup", {"0", "1"}, 2, 1, "Group.6"},
    {"KATA3", "kata3Popup", {"0", "1"}, 2, 0, "Group.6"},
    {"CHOUON_CNV", "chouon_cnvPopup", {"0", "1"}, 2, 1, "Group.6"},
    {"NAKATEN", "nakatenPopup", {"0", "1"}, 2, 1, "Group.6"},
    {"EQUAL", "equalPopup", {"0", "1"}, 2, 0, "Group.6"},
    {"SPACE", "spacePopup", {"0", "1"}, 2, 0, "Group.6"},
    {"TAIL_CHOUON", "tail_chouonPopup", {"0", "1"}, 2, 1, "Group.6"},
    {"CHOUON_IN_KANA", "chouon_in_kanaPopup", {"0", "1"}, 2, 1, "Group.6"},
    {"KIGOU_CNV", "kigou_cnvPopup", {"0", "1"}, 2, 0, "Group.5"},
    {"HandleInputEMailPrefixes", "handleInputEmailPrefixesPopup", {"0", "1"}, 2, 1, "Group.5"},
    {"GENE_LIST", "gene_listPopup", {"imperative", "declarative", "gerund", "toinf", "3sp"}, 5, 0, "Group.2"},
    {"TRAN_NO_SUBJ", "tran_no_subjPopup", {"not_human", "passive", "human", "imperative", "3sp"}, 5, 2, "Group.2"},
    {"GENE_ARTCL", "gene_artclPopup", {"the", "a", "Null", "Default"}, 4, 3, "Group.3"},
    {"TRAN_ABBR", "tran_abbrPopup", {"yes", "no"}, 2, 0, "Group.3"},
    {"GENE_IMP", "gene_impPopup", {"do", "please"}, 2, 0, "Group.2"},
    {"IMP_SUBJ", "imp_subjPopup", {"must", "should", "asfor"}, 3, 1, "Group.2"},
    {"ENGM_COMPN", "engm_compnPopup", {"space", "hyphen"}, 2, 0, "Group.3"},
    {"KATA_ROMAN", "kata_romanPopup", {"ON", "OFF"}, 2, 1, "Group.6"},
    {"TRAN_CST", "tran_cstPopup", {"make", "Null"}, 2, 0, "Group.1"},
    {"TRAN_SAHEN", "tran_sahenPopup", {"verb", "noun"}, 2, 0, "Group.1"},
    {"TRAN_RENGO", "tran_rengoPopup", {"noun", "verb"}, 2, 0, "Group.3"},
    {"TRAN_TEIRU_PG", "tran_teiru_pgPopup", {"progressive", "present"}, 2, 0, "Group.1"},
    {"TRAN_TEIRU_PF", "tran_teiru_pfPopup", {"perfective", "present"}, 2, 0, "Group.1"},
    {"TRAN_SARETA", "tran_saretaPopup", {"past", "present"}, 2, 0, "Group.1"},
    {"GENE_NADONO",
     "gene_nadonoPopup",
     {"such_as", "kakko", "example", "e.g.", "that_is", "instance"},
     6,
     0,
     "Group.3"},
    {"ENGM_TITLE_CAP", "engm_title_capPopup", {"all", "head", "top"}, 3, 1, "Group.4"},
    {"TRAN_NIHA", "tran_nihaPopup", {"how", "ing"}, 2, 0, "Group.4"},
    {"TRAN_SAHEN_TITLE", "tran_sahen_titlePopup", {"noun", "ing"}, 2, 0, "Group.4"},
}};

}  // namespace

std::span<const IndexOption> indexOptions() { return std::span(indexTable).first<7>(); }

std::span<const IndexOption> storedOptions() { return indexTable; }

const IndexOption* indexOptionForTag(int popupTag) {
  const auto options = indexOptions();
  const auto option = std::find_if(options.begin(), options.end(),
                                   [popupTag](const IndexOption& row) { return row.popupTag == popupTag; });
  return option != options.end() ? &*option : nullptr;
}

const std::vector<std::pair<std::string_view, PropertyList>>& jeOptionDefaults() {
  static const std::vector<std::pair<std::string_view, PropertyList>> defaults{
      {keyNameJEOpt1, 0}, {keyNameJEOpt2, 2}, {keyNameJEOpt3, 3}, {keyNameJEOpt4, true}, {keyNameJEOpt5, 0}};
  return defaults;
}

std::vector<std::string> missingOptions(const Dictionary& root) {
  std::vector<std::string> missing;
  for (const auto& [key, value] : jeOptionDefaults()) {
    const bool isMissing = std::ranges::any_of(stylesIn(root), [&key](const PropertyList& style) {
      const Dictionary* record = style.dictionary();
      const Dictionary* je = record != nullptr ? record->dictionary(keyNameJE) : nullptr;
      return je != nullptr && !je->contains(key);
    });
    if (isMissing) missing.emplace_back(key);
  }
  return missing;
}

std::span<const DetailOption> detailOptions() { return detailTable; }

std::span<const std::string_view> detailHeadings() {
  static constexpr std::array<std::string_view, 6> headings{"Group.1", "Group.2", "Group.3",
                                                            "Group.4", "Group.5", "Group.6"};
  return headings;
}

std::string_view DetailOption::valueForTag(int tag) const {
  return values[static_cast<std::size_t>(tag >= 0 && tag < valueCount ? tag : otherwise)];
}

int DetailOption::tagForValue(std::string_view value) const {
  const auto all = choices();
  const auto found = std::find(all.begin(), all.end(), value);
  return found != all.end() ? static_cast<int>(found - all.begin()) : -1;
}

std::vector<PopUpButton::Item> itemsFor(const IndexOption& option, const Texts& texts) {
  std::vector<PopUpButton::Item> items;
  items.reserve(static_cast<std::size_t>(option.itemCount));
  for (int i = 0; i < option.itemCount; ++i) {
    items.push_back({texts.localized(std::string(option.key) + "." + std::to_string(i)), i});
  }
  return items;
}

std::vector<PopUpButton::Item> itemsFor(const DetailOption& option, const Texts& texts) {
  std::vector<PopUpButton::Item> items;
  for (const std::string_view value : option.choices()) {
    const std::string* title = texts.find(std::string(option.key) + "." + std::string(value));
    items.push_back({title != nullptr ? *title : std::string(value), static_cast<int>(items.size())});
  }
  return items;
}

}  // namespace tarvo
