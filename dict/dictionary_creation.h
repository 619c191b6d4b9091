// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/services/result.h"
#include "platform/text/paths.h"
#include "style/dictionary_kind.h"

namespace tarvo {

class Bundle;
class FileService;

// The bundle's template of an empty dictionary, whatever the kind: "EJStationery.eud2" for English to Japanese, else
// "JEStationery.jud".
std::string templateName(Direction direction);

// Makes the file of a new, empty dictionary from the template. User dictionaries get their type code and a blank
// creator, on disks that keep such codes, and have them as soon as they have their name.
// A template that is missing is no failure: then no file is made, which the path alone shows. After a failure nothing
// is there.
Result<> makeDictionaryFile(FileService& files, const Bundle& bundle, const DiskPath& path, DictionaryKind kind,
                            Direction direction);

}  // namespace tarvo
