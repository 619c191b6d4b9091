// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/plist/property_list.h"

namespace tarvo::test {

// A style file's root with four records: the standard style, "Alpha" without dictionaries, the divider, "Beta" with
// keys that the manager does not know; tools MG and QB have a remembered style; one key beside them is nobody's.
Dictionary sampleRoot();

}  // namespace tarvo::test
