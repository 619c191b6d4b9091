// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>

#include "platform/services/result.h"

// The words under which the text tables hold what was tried and what the product found.
namespace tarvo {

struct AttemptWord {
  Attempt attempt;
  const char* word;  // the key is "Failure." and this
};
inline constexpr std::array<AttemptWord, 18> attemptWords{{{Attempt::look, "look"},
                                                           {Attempt::read, "read"},
                                                           {Attempt::write, "write"},
                                                           {Attempt::keep, "keep"},
                                                           {Attempt::list, "list"},
                                                           {Attempt::makeFolder, "folder"},
                                                           {Attempt::copy, "copy"},
                                                           {Attempt::remove, "remove"},
                                                           {Attempt::setCodes, "codes"},
                                                           {Attempt::install, "install"},
                                                           {Attempt::uninstall, "uninstall"},
                                                           {Attempt::create, "create"},
                                                           {Attempt::start, "start"},
                                                           {Attempt::reach, "reach"},
                                                           {Attempt::store, "store"},
                                                           {Attempt::fetch, "fetch"},
                                                           {Attempt::check, "check"},
                                                           {Attempt::open, "open"}}};

struct ReasonWord {
  Reason reason;
  const char* word;  // the keys are "Cause." and this, and "Cure." and this where something helps
};
inline constexpr std::array<ReasonWord, 31> reasonWords{{{Reason::noPath, "noPath"},
                                                         {Reason::noRegularFile, "noRegularFile"},
                                                         {Reason::noPropertyList, "noPropertyList"},
                                                         {Reason::noDictionary, "noDictionary"},
                                                         {Reason::intoItself, "intoItself"},
                                                         {Reason::wholeProduct, "wholeProduct"},
                                                         {Reason::linkInTheWay, "linkInTheWay"},
                                                         {Reason::deadLink, "deadLink"},
                                                         {Reason::nothingNamed, "nothingNamed"},
                                                         {Reason::noInstallFolder, "noInstallFolder"},
                                                         {Reason::missingResource, "missingResource"},
                                                         {Reason::emptyResource, "emptyResource"},
                                                         {Reason::noService, "noService"},
                                                         {Reason::notAsked, "notAsked"},
                                                         {Reason::unreachable, "unreachable"},
                                                         {Reason::unknownHost, "unknownHost"},
                                                         {Reason::notTrusted, "notTrusted"},
                                                         {Reason::refused, "refused"},
                                                         {Reason::contended, "contended"},
                                                         {Reason::absentThere, "absentThere"},
                                                         {Reason::damaged, "damaged"},
                                                         {Reason::noStyle, "noStyle"},
                                                         {Reason::foreignLink, "foreignLink"},
                                                         {Reason::emptied, "emptied"},
                                                         {Reason::foreign, "foreign"},
                                                         {Reason::overLimit, "overLimit"},
                                                         {Reason::plainPassword, "plainPassword"},
                                                         {Reason::noProgram, "noProgram"},
                                                         {Reason::noAddress, "noAddress"},
                                                         {Reason::ownFile, "ownFile"},
                                                         {Reason::onItsWay, "onItsWay"}}};

// Rows stand in the order of their values, so that a value finds its row by its number.
constexpr const char* wordOf(Attempt attempt) { return attemptWords[static_cast<std::size_t>(attempt)].word; }
constexpr const char* wordOf(Reason reason) { return reasonWords[static_cast<std::size_t>(reason) - 1].word; }

static_assert([] {
  for (std::size_t i = 0; i < attemptWords.size(); ++i) {
    if (attemptWords[i].attempt != static_cast<Attempt>(i)) return false;
  }
  for (std::size_t i = 0; i < reasonWords.size(); ++i) {
    if (reasonWords[i].reason != static_cast<Reason>(i + 1)) return false;
  }
  return attemptWords.back().attempt == Attempt::open && reasonWords.back().reason == Reason::onItsWay;
}());

}  // namespace tarvo
