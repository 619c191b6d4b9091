// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/engine_none.h"

namespace tarvo {

bool EngineNone::checkConnectionWithCurl() { return false; }
void EngineNone::sendRegistStyle(const StyleSet&, std::string&) {}
bool EngineNone::checkStyle() { return false; }
bool EngineNone::requestStyle(Array&, std::string&) { return false; }

}  // namespace tarvo
