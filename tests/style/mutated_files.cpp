// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "tests/style/mutated_files.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tarvo::test {

namespace {

constexpr std::array<std::string_view, 30> words{
    "<integer>", "</integer>", "<string>", "</string>", "<dict>", "</dict>", "<array>", "</array>", "<key>", "</key>",
    "<true/>",   "<false/>",   "<real>",   "</real>",   "<date>", "</date>", "<data>",  "</data>",  "EJ",    "JE",
    "TD",        "Opt1",       "TOpt3",    "TOpt4",     ">0<",    ">1<",     ">2<",     ">-1<",     ">9<",   "&#0;"};

}  // namespace

void MutatedFiles::changeBytes(std::string& bytes) {
  if (bytes.empty()) return;
  const std::size_t at = below(bytes.size());
  switch (below(4)) {
    case 0: bytes[at] = static_cast<char>(static_cast<unsigned char>(bytes[at]) ^ (1U << below(8))); return;
    case 1: bytes[at] = static_cast<char>(random_()); return;
    case 2: bytes.insert(at, 1, static_cast<char>(random_())); return;
    default: bytes.erase(at, 1 + below(4)); return;
  }
}

void MutatedFiles::changePiece(std::string& bytes) {
  const std::size_t at = below(bytes.size()), length = below(std::min<std::size_t>(bytes.size(), 200));
  const std::string piece = at < bytes.size() ? bytes.substr(at, length) : "";
  switch (below(4)) {
    case 0: bytes.resize(at); return;
    case 1: bytes.erase(at, length); return;
    case 2: bytes.insert(below(bytes.size() + 1), piece); return;
    default:
      bytes.erase(at, length);
      bytes.insert(below(bytes.size() + 1), piece);
      return;
  }
}

// One word in the place of another keeps many a file well-formed.
void MutatedFiles::changeWord(std::string& bytes) {
  const std::string_view word = words[below(words.size())], other = words[below(words.size())];
  const std::size_t start = below(bytes.size());
  std::size_t at = bytes.find(word, start);
  if (at == std::string::npos) at = bytes.find(word);
  if (at == std::string::npos) return changeBytes(bytes);
  bytes.replace(at, word.size(), other);
}

std::string MutatedFiles::next() {
  std::string bytes = sound_[below(sound_.size())];
  for (std::size_t changes = 1 + below(below(4) == 0 ? 8 : 2); changes > 0; --changes) {
    switch (below(8)) {
      case 0: changePiece(bytes); break;
      case 1:
      case 2: changeBytes(bytes); break;
      default: changeWord(bytes); break;
    }
  }
  return bytes;
}

}  // namespace tarvo::test
