// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "style/pane_alerts.h"

#include <array>
#include <utility>

#include "platform/services/panels.h"
#include "platform/services/texts.h"

namespace tarvo {

void PaneAlerts::tell(std::string_view key) { panels_.tell(texts_.localized(key)); }

void PaneAlerts::runAlertWithText(const std::string& header, const std::string& message, const std::string& details) {
  panels_.runAlertPanel(
      {.title = header, .message = message, .buttons = {texts_.localized("AlertClose")}, .details = details});
}

void PaneAlerts::beepAndAlert(std::string_view headerKey, std::string_view messageKey) {
  beepAndAlertWithText(texts_.localized(headerKey), texts_.localized(messageKey));
}

void PaneAlerts::beepAndAlertWithText(const std::string& header, const std::string& message) {
  panels_.beep();
  runAlertWithText(header, message);
}

void PaneAlerts::openMaxOverAlert(DictionaryKind kind) {
  constexpr std::array<std::pair<std::string_view, std::string_view>, 3> keys{
      {{"MaxOverTDAlertHeader", "MaxOverTDAlertContents"},
       {"MaxOverUDAlertHeader", "MaxOverUDAlertContents"},
       {"MaxOverUTMAAlertHeader", "MaxOverUTMAAlertContents"}}};
  const auto& [header, message] = keys[static_cast<std::size_t>(numberOf(kind))];
  beepAndAlert(header, message);
}

}  // namespace tarvo
