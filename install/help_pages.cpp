// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/help_pages.h"

#include <algorithm>
#include <optional>

#include "platform/services/bundle.h"
#include "platform/services/opener.h"
#include "platform/services/product_paths.h"
#include "platform/services/texts.h"

namespace tarvo {

namespace {

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// RFC 3986: a scheme begins with a letter; letters, digits, "+", "-" and "." follow; then comes a colon.
bool hasScheme(const std::string& address) {
  const std::size_t colon = address.find(':');
  if (colon == std::string::npos || colon == 0 || !isLetter(address[0])) return false;
  return std::all_of(address.begin(), address.begin() + static_cast<std::ptrdiff_t>(colon),
                     [](char c) { return isLetter(c) || (c >= '0' && c <= '9') || c == '+' || c == '-' || c == '.'; });
}

}  // namespace

void HelpPages::showHelp() {
  if (const std::optional<DiskPath> page = bundle_.resource("index", "htm", "Help")) return opener_.openFile(*page);
  opener_.cannot({(bundle_.folder() / "Help/index.htm").text(), Attempt::open, Reason::missingResource});
}

void HelpPages::GotoRegiandSupportPage() { showPage(paths_.tarvoPathSupportURL(), texts_.localized("supportHelp")); }

void HelpPages::GotoWordhavenPage() { showPage(paths_.tarvoPathHomepageURL(), texts_.localized("whHelp")); }

void HelpPages::aboutOldEtoJTech() {
  const std::string* address = texts_.find("oldEJTech");
  showPage(address != nullptr ? *address : std::string(), texts_.localized("oldEJTechMenu"));
}

void HelpPages::showPage(const std::string& address, const std::string& name) {
  if (hasScheme(address)) return opener_.openAddress(address);
  opener_.cannot({address.empty() ? name : address, Attempt::open, Reason::noAddress});
}

}  // namespace tarvo
