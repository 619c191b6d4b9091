// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarvo {

// One line of a script. Words are separated by blanks and may be quoted, whole or in part, with "…" (inside: \" \\ \n
// \t \uXXXX); a word that begins with # starts a comment.
// Throws ScriptError for a quotation that is not closed and an escape that there is none of.
class ScriptLine {
 public:
  explicit ScriptLine(std::string text);
  // The next word; "" at the end (see atEnd).
  std::string word();
  bool atEnd();
  // What is left of the line as it stands, without the blanks around it. Nothing of it is read as a comment.
  std::string rest();
  std::vector<std::string> words();  // all that are left

 private:
  void skipBlanks();
  void quotation(std::string& word);
  void escape(std::string& word);
  char32_t hexadecimal();
  std::string text_;
  std::size_t at_ = 0;
};

}  // namespace tarvo
