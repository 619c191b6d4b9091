// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "dict/dictionary_name_checks.h"
#include "platform/controls/controls.h"

// The sheet that asks for the name of a new dictionary. The style pane and the picker have one each.
// Duty: show the kind's texts, let only a good name end it with OK. Not: making the dictionary.
namespace tarvo {

class Windows;

class NewDictionarySheet {
 public:
  struct Controls {
    Window& window;
    TextField &name, &prompt, &folderName, &folderTitle;
  };
  NewDictionarySheet(Controls controls, NewDictionaryRequest& request, DictionaryNameChecks::Rules rules,
                     DictionaryNameChecks::Services services, Windows& windows);

  // Empties the name, shows the texts of the request's kind (other kinds than 1 and 2 leave the texts as they were) and
  // comes up over the host. False: it could not, the host has a sheet. ended: told the return code, 1 for OK, 0 for
  // Cancel, when the sheet is gone.
  bool begin(std::string_view promptKey, Window& host, std::function<void(int returnCode)> ended);
  void newDicOKButtonAction();
  void newDicCancelButtonAction();
  DictionaryNameChecks& checks() { return checks_; }

 private:
  Controls controls_;
  NewDictionaryRequest& request_;
  const Texts& texts_;
  Windows& windows_;
  DictionaryNameChecks checks_;
};

}  // namespace tarvo
