// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "platform/engine/shared_library.h"

#include <dlfcn.h>

namespace tarvo {

SharedLibrary::SharedLibrary(const char* name) : handle_(dlopen(name, RTLD_NOW | RTLD_LOCAL)) {}

void* SharedLibrary::symbol(const char* name) const { return handle_ == nullptr ? nullptr : dlsym(handle_, name); }

}  // namespace tarvo
