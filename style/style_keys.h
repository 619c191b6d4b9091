// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

// Keys of the style file, of its records, and of the settings that the style pane keeps. Other tools read the same
// file: the spellings are fixed.
namespace tarvo {

inline constexpr std::string_view gStylePath = "Library/Preferences/Wordhaven/TarvoStyle2009.plist";  // below the home
inline constexpr std::string_view gEarlierStyles =
    "Library/Application Support/Wordhaven/Tarvo Styles";  // below the home
inline constexpr std::string_view gAppSupportStylePlist =
    "/Library/Application Support/Wordhaven/TarvoEiwa/TarvoStyle2009.plist";

inline constexpr std::string_view keyNameStyle = "Style";
inline constexpr std::string_view keyNameSelection = "Selection";
inline constexpr std::string_view keyNameName = "Name";
inline constexpr std::string_view keyNameID = "ID";
inline constexpr std::string_view keyNameEJ = "EJ";
inline constexpr std::string_view keyNameJE = "JE";
inline constexpr std::string_view keyNameTD = "TD";
inline constexpr std::string_view keyNameEJOpt1 = "Opt1";
inline constexpr std::string_view keyNameEJOpt2 = "Opt2";
inline constexpr std::string_view keyNameEJOpt3 = "Opt3";
inline constexpr std::string_view keyNameJEOpt1 = "TOpt1";
inline constexpr std::string_view keyNameJEOpt2 = "TOpt2";
inline constexpr std::string_view keyNameJEOpt3 = "TOpt3";
inline constexpr std::string_view keyNameJEOpt4 = "TOpt4";
inline constexpr std::string_view keyNameJEOpt5 = "TOpt5";

// Text key whose text names the divider record of the style menu.
inline constexpr std::string_view keyNameSeparator = "keyNameSeparator";
// Text key of the standard style's name; the string tables of every tool spell it so.
inline constexpr std::string_view nomalStyle = "NomalStyle";

inline constexpr std::string_view SMSelectedTag = "SMSelectedTag";
inline constexpr std::string_view lastUpdate = "LastUpdate";

}  // namespace tarvo
