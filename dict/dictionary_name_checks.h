// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dict/dictionary_names.h"

// The checks that the name of a new dictionary must pass, in this order. Each one that fails tells so in one alert, as
// far as the kind has one. Keys without a text show as nothing here. Nothing is written to disk.
namespace tarvo {

class FileService;
class Panels;
class ProductPaths;
class TextField;
class Texts;
struct NewDictionaryRequest;

class DictionaryNameChecks {
 public:
  struct Services {
    const FileService& files;
    const Texts& texts;
    const ProductPaths& paths;
    Panels& panels;
  };
  // How the sheets of the style pane and of the picker differ.
  struct Rules {
    std::vector<std::string_view> forbidden;    // texts that no name may contain
    bool tellsOverlongNamesOfOddKinds = false;  // an alert without a message, for kinds other than 1 and 2
  };
  DictionaryNameChecks(TextField& nameField, NewDictionaryRequest& request, Rules rules, Services services);

  // Stops at the first that fails.
  bool passAll();
  bool checkDicNameEnough();    // not empty; the field keeps the name without white space at its ends
  bool checkInvalidName();      // no forbidden text
  bool checkIsCommonDicName();  // not the name of the common dictionary of the kind and direction, ignoring case
  bool checkIsOverCountName();  // at most 30 bytes in Shift_JIS
  bool checkExistsNewDic();     // no such file yet; leaves the file name in the request
  bool compareInvalidName(std::string_view forbidden) const;  // whether the name is free of it

 private:
  const std::string& name() const;
  DictionaryNames names() const { return {services_.files, services_.texts, services_.paths}; }
  // value: fills the message's gap.
  void alert(const std::string& header, std::string_view messageKey, std::string_view value = "");
  TextField& nameField_;
  NewDictionaryRequest& request_;
  Rules rules_;
  Services services_;
};

}  // namespace tarvo
