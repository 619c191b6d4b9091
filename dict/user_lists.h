// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "dict/dict_controller.h"

namespace tarvo {

// The lists of user dictionaries and translation memories, one per direction. Nothing of them is stored in a style;
// they show what lies in the user's two folders.
class UserLists {
 public:
  explicit UserLists(DictController::Services services);
  DictController ejUDController, jeUDController, ejUTMAController, jeUTMAController;
  // Makes the two folders when they are missing, tells which cannot be made, and scans them.
  void setUp();
  std::function<void(const Failure& failure)> didFail;

 private:
  DictController::Services services_;
};

}  // namespace tarvo
