// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/engine.h"

namespace tarvo {

class UserDefaults;

// Hands the styles to the translation engine and remembers the stamp it gives back.
// Duty: registration after a write of the style file. Not: deciding when; holding styles.
class EngineRegistration {
 public:
  EngineRegistration(Engine& engine, UserDefaults& defaults) : engine_(engine), defaults_(defaults) {}
  // Asks whether the engine can be reached; then registers the set and stores the stamp, even an empty one, as
  // "LastUpdate". styles: null when the style file holds none; a damaged file must not wipe the engine's set.
  void registerStyles(const StyleSet* styles);

 private:
  Engine& engine_;
  UserDefaults& defaults_;
};

}  // namespace tarvo
