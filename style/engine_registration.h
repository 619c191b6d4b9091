// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "platform/services/engine.h"

namespace tarvo {

class UserDefaults;

// Hands the styles to the translation engine, takes newer ones from it, and remembers the stamp that it gives back.
// Duty: the exchange after a write of the style file and at launch. Not: deciding when; holding styles.
// styles: null when the style file holds none; a damaged file must not wipe the engine's set.
class EngineRegistration {
 public:
  EngineRegistration(Engine& engine, UserDefaults& defaults) : engine_(engine), defaults_(defaults) {}
  // Asks whether the engine can be reached; then registers the set and stores the stamp, even an empty one, as
  // "LastUpdate".
  void registerStyles(const StyleSet* styles);
  // The styles are the product's in the place of the user's, which could not be read: what an engine of the product
  // holds stays there, until the styles are the user's again or the engine was found to hold none. Remembered over runs
  // from the first flush of the settings at which it may be.
  void beginStandIn(std::function<bool()> mayStore);
  void endStandIn();
  bool isStandIn() const;
  // The last registration found a set, and left it alone.
  bool wasLeftAlone() const;
  // How the last registration ended, as far as that is known by now; nothing before the first that had styles to hand
  // over.
  std::optional<Result<>> outcome() const;
  // The engine may know more of it.
  void settle();
  // Where each style is in the set that was taken last; empty: in its place.
  std::vector<std::optional<std::size_t>> placesOfTaken() const { return engine_.placesOfRequested(); }
  void didStoreStyles() { engine_.didStoreStyles(); }
  void didSeedStyles(const Array& styles) { engine_.didSeedStyles(styles); }
  // Registers the set with an engine that holds none; else asks for a set that is newer than "LastUpdate", and answers
  // it after its stamp was stored. Nothing when there is none. Fails when what the engine holds cannot be read, or is
  // no set of styles that a style file could hold. The caller has made sure that the engine can be reached.
  Result<std::optional<Array>> reconcile(const StyleSet* styles);

 private:
  void send(const StyleSet* styles);
  void keep(const std::string& stamp);
  Engine& engine_;
  UserDefaults& defaults_;
  // later: the engine could not be reached, and takes the styles when it can be.
  enum class Handed { nothing, nowhere, later, over };
  Handed handed_ = Handed::nothing;  // by the last registration
  Result<> unreached_;
};

}  // namespace tarvo
