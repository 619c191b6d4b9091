// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "platform/plist/plist_writer.h"
#include "platform/services/engine.h"

namespace tarvo::test {

// A set of styles as the store hands it to an engine.
struct EncodedStyles {
  explicit EncodedStyles(const std::vector<std::string>& names) {
    for (const std::string& name : names) {
      Dictionary record, direction;
      direction.set("Opt1", 2);
      direction.set("TD", Array{PropertyList("医学.TRet"), PropertyList("<&>")});
      record.set("Name", name);
      record.set("EJ", std::move(direction));
      records.emplace_back(std::move(record));
    }
    for (const PropertyList& record : records) appendValue(encoded.emplace_back(), record, 2);
  }
  StyleSet set() const { return {records, encoded}; }
  // The front of a payload with this hash and this revision.
  static std::string front(const std::string& hash, const std::string& revision) {
    return std::string(plistHead) + "<dict>\n\t<key>Hash</key>\n\t<string>" + hash +
           "</string>\n\t<key>Revision</key>\n\t<integer>" + revision + "</integer>\n\t<key>Style</key>\n";
  }

  Array records;
  std::vector<std::string> encoded;
};

}  // namespace tarvo::test
