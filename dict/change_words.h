// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "style/style_changes.h"

// Changes of styles in words, for people who read or hear them.
namespace tarvo {

class Texts;
struct StoredChange;

// One text a style: "Patents: Sentence style Polite → Plain; − Physics".
std::vector<std::string> changesInWords(const std::vector<StyleChange>& changes, const Texts& texts);
// The same one behind the other, "" for none.
std::string changesInOneLine(const std::vector<StyleChange>& changes, const Texts& texts);
// The same one below the other; of more than so many the others are only counted.
std::string changesInLines(const std::vector<StyleChange>& changes, std::size_t most, const Texts& texts);
// What an edit did, as a menu calls it: "Remove “Physics”".
std::string nameOfEdit(const StoredChange& change, const Texts& texts);
// What an option is called; its key where it has no name.
std::string labelOf(const std::string& key, const Texts& texts);
// What a stored value of an option means; the value itself where nothing is known of it.
std::string meaningOf(const std::string& key, const PropertyList& value, const Texts& texts);

}  // namespace tarvo
