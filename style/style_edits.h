// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <expected>
#include <string>
#include <string_view>
#include <vector>

#include "platform/plist/property_list.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"
#include "style/direction.h"

// What an edit does to a style, below the controls and verbs that ask for it. A style is named by its index in the
// style file, whichever is shown or chosen.
// Duty: one edit, one write, one registration (StyleStore). Not: asking, telling, showing. An index without a record
// changes and writes nothing.
namespace tarvo {

class FileService;
class StyleStore;
class Texts;

struct OptionValue {
  Direction direction;
  std::string_view key;
  PropertyList value;
};

// A half that the record lacks gets no value, and the divider none at all; the record is written back as it is.
void setOptions(StyleStore& store, const Texts& texts, int index, const std::vector<OptionValue>& values);

enum class NameProblem { empty, taken };
// Whether no other style and no standard style has that name, letter case aside. styles: null for none. standardName:
// the display name of the standard style.
bool isNameFree(const Array* styles, int index, const std::string& name, const std::string& standardName);
// Gives the style that name without white space at its ends. Nothing is written when the name is refused.
std::expected<void, NameProblem> renameStyle(StyleStore& store, int index, const std::string& name,
                                             const std::string& standardName);

// Puts the record in the style's place, under that name and with the index as its ID. Fails where the memory does not
// suffice, or the style file could not hold all.
Result<> replaceStyle(StyleStore& store, int index, Dictionary record, const std::string& name);
// A style as a file of its own, whose root is one record (style_check.h reads it). Fails also where there is no such
// style. After a failure the file is as it was.
Result<> writeStyleFile(const StyleStore& store, int index, FileService& files, const DiskPath& path);

}  // namespace tarvo
