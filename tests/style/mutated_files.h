// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <random>
#include <string>
#include <vector>

namespace tarvo::test {

// Files as bad disks, bad transfers and bad programs leave them: one of the sound files with one to eight changes, of
// single bits up to whole pieces moved, and of the words that property lists are made of. The same seed gives the same.
class MutatedFiles {
 public:
  MutatedFiles(std::vector<std::string> sound, unsigned seed) : sound_(std::move(sound)), random_(seed) {}
  std::string next();

 private:
  std::size_t below(std::size_t limit) { return limit == 0 ? 0 : static_cast<std::size_t>(random_() % limit); }
  void changeBytes(std::string& bytes);
  void changePiece(std::string& bytes);
  void changeWord(std::string& bytes);
  std::vector<std::string> sound_;
  std::mt19937_64 random_;
};

}  // namespace tarvo::test
