// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/services/result.h"
#include "platform/text/paths.h"
#include "style/dictionary_kind.h"

namespace tarvo {

class FileService;
class ProductPaths;

// Where dictionaries of that kind and direction lie. The user's own of both directions share a folder.
DiskPath dictionaryFolder(const ProductPaths& paths, DictionaryKind kind, Direction direction);

// The names in such a folder; none where no folder is there. Fails where that cannot be known: what cannot be listed, a
// file in the place of the folder too, is no empty folder.
Result<std::vector<std::string>> namesInDictionaryFolder(const FileService& files, const DiskPath& folder);

}  // namespace tarvo
