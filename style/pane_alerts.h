// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "style/dictionary_kind.h"

// The alerts of the style pane that have one button, the text of "AlertClose". They return when the user has closed
// them. Texts are given as they are, or as keys of the text table (a key without a text shows itself).
namespace tarvo {

class Panels;
class Texts;

class PaneAlerts {
 public:
  PaneAlerts(Panels& panels, const Texts& texts) : panels_(panels), texts_(texts) {}

  // No alert: a line that tells why nothing happened.
  void tell(std::string_view key);
  // details: for who wants to know more; may be empty.
  void runAlertWithText(const std::string& header, const std::string& message, const std::string& details = "");
  void beepAndAlert(std::string_view headerKey, std::string_view messageKey);
  void beepAndAlertWithText(const std::string& header, const std::string& message);
  // A list of that kind is full.
  void openMaxOverAlert(DictionaryKind kind);

 private:
  Panels& panels_;
  const Texts& texts_;
};

}  // namespace tarvo
