// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

namespace tarvo {

class Locations;
class UserDefaults;

// Applications that a search found outside the product's root are remembered by their real paths, and a later run would
// look for them below the root. Leaves the folders of those as they are that exist, and do not exist below the root:
// what lies there comes first. Does nothing without a root. Call it before the remembered list is used.
void leavePickedApplications(const UserDefaults& defaults, Locations& locations);

}  // namespace tarvo
