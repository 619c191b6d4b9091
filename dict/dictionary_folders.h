// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/text/paths.h"
#include "style/dictionary_kind.h"

namespace tarvo {

class ProductPaths;

// Where dictionaries of that kind and direction lie. The user's own of both directions share a folder.
DiskPath dictionaryFolder(const ProductPaths& paths, DictionaryKind kind, Direction direction);

}  // namespace tarvo
