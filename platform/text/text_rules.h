// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// The rules by which the product compares and cuts texts. All texts are UTF-8; bytes that are no UTF-8 compare as they
// are. Source of letter case and white space: the Unicode character database (simple case folding, one code point to
// one code point, no locale, no normalisation; property White_Space).
namespace tarvo {

bool equalIgnoringCase(std::string_view a, std::string_view b);
// A key for tables of names: two texts have the same exactly when they are equal ignoring case.
std::string caseFolded(std::string_view text);
// False for an empty word: nothing was asked for.
bool containsIgnoringCase(std::string_view text, std::string_view word);
// Without white space and line breaks at both ends (U+3000 and U+00A0 included, U+200B not).
std::string trimmed(std::string_view text);
// The leading decimal number of a text ("10.6.8" gives 10.6), independent of the locale; 0 when there is none.
double leadingNumber(std::string_view text);
// The leading decimal integer, white space and one sign allowed before it; saturates; 0 when there is none.
int leadingInteger(std::string_view text);

std::string lastPathComponent(std::string_view path);  // "/a/b/" gives "b"
std::string deletingLastPathComponent(std::string_view path);
std::string pathExtension(std::string_view name);  // without the dot; "" for ".TRet" and "a"
// With the extension added, unless it has it already, ignoring case. An empty extension adds nothing.
std::string withPathExtension(std::string name, std::string_view extension);
std::string deletingPathExtension(std::string_view name);  // "a.b.TRet" gives "a.b"; ".TRet" stays
// Exactly one slash between the two, even when the second begins with one; the first alone when the second is empty.
std::string joinPath(std::string_view base, std::string_view rest);
bool isAbsolutePath(std::string_view path);
// Whether path is folder or lies below it. Both absolute; nothing is resolved.
bool isBelow(std::string_view path, std::string_view folder);

}  // namespace tarvo
