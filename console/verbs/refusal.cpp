// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "console/verbs/refusal.h"

#include <algorithm>

#include "app/product.h"
#include "app/user_files.h"
#include "platform/plist/json.h"
#include "platform/services/failure_text.h"
#include "platform/services/user_defaults.h"
#include "platform/text/printable.h"

namespace tarvo {

namespace {

// A text "what; cause; cure" in its parts. What fills its gap comes afterwards: it may hold anything.
MessageParts partsOf(const std::string& text) {
  constexpr std::string_view between = "; ";
  const std::size_t first = std::min(text.find(between), text.size());
  const std::size_t second = std::min(text.find(between, first + 1), text.size());
  const auto part = [&text](std::size_t start, std::size_t end) {
    return start < text.size() ? text.substr(start, end - start) : std::string();
  };
  return {part(0, first), part(first + between.size(), second), part(second + between.size(), text.size())};
}

// A problem as it is told.
struct Told {
  std::string name;  // what it is about
  MessageParts parts;
};

struct Telling {
  const Texts& texts;
  Told operator()(const Refusal& refusal) const {
    MessageParts parts = partsOf(texts.localized(refusal.key));
    for (std::string* part : {&parts.what, &parts.cause, &parts.cure}) *part = filledIn(*part, refusal.detail);
    return {refusal.name, std::move(parts)};
  }
  Told operator()(const UsageError& error) const { return {subjectOf(error), reasonOf(error, texts)}; }
  Told operator()(const Failure& failure) const { return {failure.path, failureParts(failure, texts)}; }
  Told operator()(const StyleFault& fault) const { return {fault.failure.path, styleFaultParts(fault, texts)}; }
};

ExitStatus statusOf(const Problem& problem) {
  if (const auto* refusal = std::get_if<Refusal>(&problem)) return refusal->status;
  return std::holds_alternative<UsageError>(problem) ? ExitStatus::usage : ExitStatus::refused;
}

void print(Console& console, const Told& told) {
  console.err << "tarvoctl: " << printable(told.name) << ": " << printable(joined(told.parts)) << '\n';
}

}  // namespace

ExitStatus tell(Console& console, const Problem& problem) {
  const Texts texts = console.textsToTell();
  const Told told = std::visit(Telling{texts}, problem);
  print(console, told);
  if (console.json) {
    const auto& [what, cause, cure] = told.parts;
    const Json::Object error{{"name", told.name}, {"what", what}, {"cause", cause}, {"cure", cure}};
    console.out << writeJson(Json::Object{{"done", false}, {"error", error}}) << '\n';
  }
  return statusOf(problem);
}

std::optional<Problem> takeLock(Console& console) {
  Product& product = console.product;
  const UserPlace place = userPlace(product.files(), product.locations(), product.paths());
  const Result<> taken = console.takeLock(place);
  if (taken) return std::nullopt;
  const bool isNoFile = taken.error().cause == Reason::noRegularFile;
  return Refusal{place.lock.text(), isNoFile ? "Refusal.LockIsNoFile" : "Refusal.Locked", "", ExitStatus::locked};
}

void note(Console& console, const Refusal& told) {
  const Texts texts = console.textsToTell();
  print(console, Telling{texts}(told));
}

void note(Console& console, const std::string& name, const std::string& words) {
  print(console, Told{name, {words, "", ""}});
}

void note(Console& console, const Failure& failure) {
  const Texts texts = console.textsToTell();
  print(console, Telling{texts}(failure));
}

void noteUnread(Console& console, const UserDefaults& settings) {
  const std::optional<Failure>& unread = settings.unread();
  if (!unread) return;
  note(console, {unread->path, "Refusal.UnreadableSettings", failureParts(*unread, console.textsToTell()).cause});
}

UsageError unknownEngine(const std::string& address) {
  return {UsageError::Kind::wrongValue, address, {}, "Usage.Engine", "--engine"};
}

void say(Console& console, const Outcome& outcome) {
  const bool isSo = outcome.changed.empty();
  if (!console.json) {
    if (isSo) console.out << "already\n";
    return;
  }
  Json::Object answer{
      {"done", true}, {"changed", Json::List(outcome.changed.begin(), outcome.changed.end())}, {"registered", nullptr}};
  if (outcome.registered) answer["registered"] = *outcome.registered;
  if (isSo) answer.emplace("already", true);
  console.out << writeJson(answer) << '\n';
}

}  // namespace tarvo
