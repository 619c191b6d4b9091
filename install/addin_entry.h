// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "install/addin_kind.h"
#include "platform/plist/property_list.h"
#include "platform/services/result.h"
#include "platform/text/paths.h"

// One application that can take an add-in: an Office program and its macro, or a mail program and its folder of
// scripts. Records come from the shipped list ("DefaultAddin.plist") and from the settings ("Office"); keys that nobody
// here knows stay in them.
namespace tarvo {

class Bundle;
class FileService;
class Locations;

using AddinEntry = Dictionary;

namespace addin_keys {
inline constexpr const char* appName = "AppName";
inline constexpr const char* appCreator = "AppCreator";  // MSWD, XCEL, PPT3; OPIM and emal are mail programs
inline constexpr const char* appVersion = "AppVersion";  // the product year
inline constexpr const char* appPath = "AppPath";
inline constexpr const char* installMacroName = "InstallMacroName";    // below the resources: subfolder and item
inline constexpr const char* installFolderPath = "InstallFolderPath";  // absolute; shipped mail records: below the home
inline constexpr const char* installFolderName = "InstallFolderName";  // below a folder chosen later, or below the home
inline constexpr const char* installStatus = "InstallStatus";          // boolean; never shipped
inline constexpr const char* office = "Office";  // the array of records, shipped and in the settings
}  // namespace addin_keys

inline constexpr const char* outlookCreator = "OPIM";    // Outlook 2011 and Entourage 2004
inline constexpr const char* appleMailCreator = "emal";  // Apple Mail

// The text of a key, "" when there is none.
std::string addinText(const AddinEntry& entry, std::string_view key);
AddinKind kindOf(const AddinEntry& entry);
bool isMarkedInstalled(const AddinEntry& entry);  // what "InstallStatus" says

// The item's own name: the last component of "InstallMacroName". "" when that names nothing that can lie in a folder,
// so that a damaged record can never mean the install folder itself or one above it.
std::string addinItemName(const AddinEntry& entry);
// What is installed: the macro or the folder of scripts in the product's resources. Fails when it is missing, or the
// record names no item.
Result<DiskPath> addinSource(const AddinEntry& entry, const Bundle& bundle);
// Where a record's application and what belongs to it lie on this disk. Records hold paths of the product; those of an
// application that the user picked outside the product's root are real ones, and with it those below its folder.
struct AddinPlaces {
  DiskPath application, folder;  // folder: to install into
  DiskPath item;                 // the installed one; empty when the record names none
};
AddinPlaces placesOf(const AddinEntry& entry, const Locations& locations, const FileService& files);

}  // namespace tarvo
