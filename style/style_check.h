// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <expected>
#include <string>

#include "platform/plist/property_list.h"
#include "platform/services/failure_text.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// Whether a file is a style that can be imported, and why not.
// Duty: read it, check it, say what is wrong with it and where. Not: putting it anywhere.
namespace tarvo {

class FileService;

struct StyleFault {
  // file: it cannot be read at all, as the failure says. absent: the key is not there. kind: it holds another kind of
  // value. range: a number beyond those allowed. date: one that other readers would refuse. depth: more lists within
  // lists than a style file holds.
  enum class Kind { file, absent, kind, range, date, depth };
  Kind kind = Kind::file;
  Failure failure;    // the file, and the cause; where its text is damaged, the place
  std::string keys;   // the way to the value at fault, "JE/TOpt3"; "" where the file as a whole is
  std::string found;  // the value as JSON spells it, shortened; "" where none is
  int most = -1;      // what is allowed for an option: 0 to this; -1: a dictionary
};

// The record that is the file's root: it has both halves and each option that a style has to hold, with a number in its
// range; the other keys, lists of dictionaries among them, are taken as they are. Memory that does not suffice is a
// fault like any other.
std::expected<Dictionary, StyleFault> readStyle(const FileService& files, const DiskPath& path);

// In words: what, cause and cure.
MessageParts styleFaultParts(const StyleFault& fault, const Texts& texts);

}  // namespace tarvo
