// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

// What a file's name gets where its bytes are kept beside it; a second to a fifth copy gets ".2" to ".5" besides.
namespace tarvo::kept_copies {

inline constexpr const char* unreadable = ".unreadable";  // it could not be read
inline constexpr const char* foreign = ".other";          // another program had written it

}  // namespace tarvo::kept_copies
