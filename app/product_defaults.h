// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/services/result.h"
#include "platform/text/paths.h"

// Where the product, its resources and the user's home are when the command line does not say so.
namespace tarvo {

class Configuration;

// The file of certificates by which a style service is trusted: as the configuration, else SSL_CERT_FILE says, a name
// that many programs know; empty for the system's.
DiskPath authoritiesFor(const Configuration& configuration);

// Where the running program lies; empty when the system does not say.
DiskPath programFolder();

// A path of the command line, made absolute from the working folder, without a trailing slash.
DiskPath absolutePath(const std::string& path);

// "ja" or "en", from the locale's environment variables.
std::string languageFromEnvironment();

// The resource folder that belongs to the running program: beside an installed one, else the source tree it was built
// from.
DiskPath defaultResources();

// The files that users and administrators write for every run, in the order in which they count: the user's below
// $XDG_CONFIG_HOME, else below ".config" in $HOME; the machine's in each folder of $XDG_CONFIG_DIRS and in /etc; each
// "tarvo-manager/config.plist". $HOME and not the product's home: a configuration may say where that is.
std::vector<DiskPath> configurationFiles();

// Why the first file without which nothing works cannot be had from this folder of resources; nothing when all are
// there.
std::optional<Failure> missingResource(const DiskPath& folder);

struct Places {
  DiskPath root, home;  // "/" for no root
};
// root, home: what the command line says. Then TARVO_ROOT and TARVO_HOME; then the root configured when the program was
// built or lying beside an installed one, and the login's home: "<root>/Users/<login>" for a root that the user named.
Places findPlaces(const std::optional<std::string>& root, const std::optional<std::string>& home);

}  // namespace tarvo
