// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <expected>
#include <string_view>

#include "platform/plist/plist_reader.h"
#include "platform/plist/property_list.h"

// The XML form of property lists; for plist_reader only, whose header states what is taken and what is not.
namespace tarvo {

enum class XmlEncoding {
  utf8,      // whatever the declaration says
  declared,  // as the declaration says, UTF-8 if it does not
};

std::expected<PropertyList, PlistDamage> readXmlPropertyList(std::string_view text, XmlEncoding encoding);

}  // namespace tarvo
