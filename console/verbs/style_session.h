// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/service_client.h"
#include "console/verbs/refusal.h"
#include "console/verbs/style_reading.h"
#include "dict/medical_dictionaries.h"
#include "dict/named_lists.h"
#include "platform/services/user_defaults.h"
#include "style/style_store.h"

namespace tarvo {

class Engine;
class Product;

// What messages call the style service: its address, or its form.
std::string serviceName(const Product& product, const Engine& engine);

// What a verb that changes styles starts: the lock, the styles as a load finds them, one operation on the style that
// was named, one write of the style file, one registration with the style service. What the load joined travels in that
// write. Neither the choice of a style nor that of a tool is touched, no window program runs.
// Duty: this frame, and telling how it went. Not: the operation.
class StyleSession {
 public:
  explicit StyleSession(Console& console);
  ~StyleSession();
  StyleSession(const StyleSession&) = delete;
  StyleSession& operator=(const StyleSession&) = delete;

  StyleStore& store() { return store_; }
  NamedLists& lists() { return lists_; }
  const EarlierStyles& earlier() const { return earlier_; }

  // What an operation needs of the styles. readable: the user's file, or that there is none, or the word to begin with
  // the product's; any: else the product's;
  // nothing: it brings all with it.
  enum class Needs { readable, any, nothing };
  // The operation: why it cannot be done, and then nothing is written; or nothing.
  using Operation = std::function<std::optional<Problem>(int index)>;
  // On the style that the word names (style_name.h).
  ExitStatus edit(const std::string& style, const Operation& operation, Needs needs = Needs::readable);
  // The same for a verb that writes no styles.
  ExitStatus read(const std::string& style, const Operation& operation);
  // All styles and choices of an earlier set (style_history.h), whether the present ones can be read or not.
  ExitStatus restore(const EarlierSet& set, const Dictionary& earlier);
  // The style that the word names, as it is in the set. Where the present ones cannot be read the word names it among
  // those of the set, and the others are the product's.
  ExitStatus restoreOne(const std::string& style, const EarlierSet& set, const Dictionary& earlier);
  // Hands all styles to the service, whatever changed.
  ExitStatus push();
  // Makes the styles here and those of the service one, as the end of a launch does: a service without styles gets
  // these; newer ones of the service replace them, and the remembered tool keeps its choice, by its index.
  ExitStatus pull();

 private:
  std::optional<Problem> open(Needs needs = Needs::readable);
  ExitStatus editAt(int index, const Operation& operation);
  void tellUnread(const char* key);
  std::expected<int, Problem> openOn(const std::string& style, Needs needs = Needs::readable);
  void noteWrite();
  // Writes what the load has joined, where no edit did.
  std::optional<Problem> writeLoaded();
  ExitStatus finish(std::vector<std::string> changed);
  ExitStatus sayHandedOver(const Result<>& outcome);
  std::optional<Problem> keepTaken();
  ExitStatus finishTaking();
  void noteWhatStaysGone();
  std::optional<bool> registerStyles();
  void waitUntilSent();
  const std::string& pathOfStyles() const;
  std::string service() const;
  Console& console_;
  std::unique_ptr<Engine> engine_;
  UserDefaults defaults_;
  EarlierStyles earlier_;
  StyleStore store_;
  MedicalDictionaries medical_;
  NamedLists lists_;
  ServiceClient client_;
  std::vector<std::string_view> inserted_;
  Mended mended_;
  bool written_ = false, toldUnkept_ = false;
  const char* unreadKey_ = "Refusal.Reseeded";  // of what is told of a style file that could not be read
};

}  // namespace tarvo
