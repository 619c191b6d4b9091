// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

// A library that is loaded when it is first needed, not with the program: most starts need no style service, and what
// serves one takes longer to load than everything else that the program does before its window is painted.
// It stays until the process ends, because such libraries register what they do then. Without the library there are no
// functions.
class SharedLibrary {
 public:
  // name: as the loader looks for it, with the version of its interface.
  explicit SharedLibrary(const char* name);

  // The function of this name and C type; null when there is none.
  template <class Function>
  Function* function(const char* name) const {
    return reinterpret_cast<Function*>(symbol(name));
  }

 private:
  void* symbol(const char* name) const;
  void* handle_;
};

}  // namespace tarvo
