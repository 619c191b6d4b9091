// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "platform/services/result.h"
#include "platform/services/texts.h"
#include "platform/text/paths.h"

namespace tarvo {

class Product;
struct UserPlace;

// How a run of the tool ended, as its exit status. waiting: done here, but the style service does not have it yet.
enum class ExitStatus { done = 0, refused = 1, usage = 2, locked = 3, scriptFailed = 4, waiting = 5 };

// What a verb works on. Results go to out, everything else to err.
struct Console {
  Product& product;
  std::ostream& out;
  std::ostream& err;
  // Takes the lock of the user's files for the rest of the process. Fails where another process holds it,
  // or (noRegularFile) where what lies there is no file.
  std::function<Result<>(const UserPlace& place)> takeLock;
  // Becomes that program with these words; answers only when it cannot.
  std::function<Failure(const DiskPath& file, std::vector<std::string> words)> become;
  // The shipped texts in the language that was asked for, in which failures are told.
  std::function<Texts()> textsToTell;
  bool json = false;           // answers are JSON
  bool reseed = false;         // styles that are there and cannot be read give way to the product's
  bool engineIsWanted = true;  // an engine that cannot be reached is worth a word
};

// One verb with its words.
// Duty: call one operation of the core, and print. Not: any logic of its own.
class Command {
 public:
  virtual ~Command() = default;
  virtual ExitStatus run(Console& console) = 0;
};

}  // namespace tarvo
