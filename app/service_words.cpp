// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "app/service_words.h"

#include <algorithm>

#include "app/service_client.h"
#include "platform/services/failure_text.h"
#include "platform/services/texts.h"

namespace tarvo {

namespace {

// Names of the styles, each once; of many the first ones.
std::string namesOf(const std::vector<MergeNote>& notes, MergeNote::Kind kind, const Texts& texts) {
  constexpr std::size_t most = 3;
  std::vector<std::string> names;
  for (const MergeNote& note : notes) {
    if (note.kind == kind && std::ranges::find(names, note.style) == names.end()) names.push_back(note.style);
  }
  std::string text;
  for (std::size_t i = 0; i < std::min(names.size(), most); ++i) {
    text += (i > 0 ? ", " : "") + filledIn(texts.localized("Service.name"), names[i]);
  }
  return names.size() > most ? text + ", …" : text;
}

}  // namespace

std::vector<std::string> sentencesOf(const ServiceNews& news, const Texts& texts) {
  using Kind = MergeNote::Kind;
  std::vector<std::string> sentences;
  for (const auto& [kind, key] : {std::pair(Kind::otherValue, "Service.otherValues"),
                                  std::pair(Kind::kept, "Service.kept"), std::pair(Kind::renamed, "Service.renamed")}) {
    const std::string names = namesOf(news.notes, kind, texts);
    if (!names.empty()) sentences.push_back(filledIn(texts.localized(key), names));
  }
  if (news.keptTheirs && sentences.empty()) sentences.push_back(texts.localized("Service.keptWhole"));
  if (news.unkept) sentences.push_back(filledIn(texts.localized("Service.unkept"), failureText(*news.unkept, texts)));
  return sentences;
}

}  // namespace tarvo
