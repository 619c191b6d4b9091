// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <ostream>

#include "dict/dictionary_list_editing.h"

// The four buttons of a direction, as one value.
namespace tarvo::test {

struct Buttons {
  bool load, up, down, remove;
  friend bool operator==(const Buttons&, const Buttons&) = default;
};
inline std::ostream& operator<<(std::ostream& out, const Buttons& buttons) {
  return out << "load " << buttons.load << ", up " << buttons.up << ", down " << buttons.down << ", remove "
             << buttons.remove;
}

inline Buttons ejButtons(const ListOutlets& outlets) {
  return {outlets.ejLoadDicButton.isEnabled(), outlets.ejRaiseDicButton.isEnabled(),
          outlets.ejDownDicButton.isEnabled(), outlets.ejRemoveDicButton.isEnabled()};
}
inline Buttons jeButtons(const ListOutlets& outlets) {
  return {outlets.jeLoadDicButton.isEnabled(), outlets.jeRaiseDicButton.isEnabled(),
          outlets.jeDownDicButton.isEnabled(), outlets.jeRemoveDicButton.isEnabled()};
}
// A state that no update gives, so that an update is seen.
inline void muddle(ListOutlets& outlets) {
  for (Button* button : {&outlets.ejRaiseDicButton, &outlets.jeRaiseDicButton}) button->setEnabled(true);
  for (Button* button : {&outlets.ejLoadDicButton, &outlets.ejDownDicButton, &outlets.ejRemoveDicButton,
                         &outlets.jeLoadDicButton, &outlets.jeDownDicButton, &outlets.jeRemoveDicButton}) {
    button->setEnabled(false);
  }
}
inline constexpr Buttons muddled{false, true, false, false};

}  // namespace tarvo::test
