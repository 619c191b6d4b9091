// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>

#include "platform/plist/plist_writer.h"
#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "platform/text/fingerprint.h"
#include "style/earlier_styles.h"
#include "style/style_file.h"
#include "style/style_keys.h"
#include "tests/support/temporary_folder.h"

namespace tarvo::test {

using namespace std::chrono_literals;
using Names = std::vector<std::string>;

inline constexpr Moment noon = std::chrono::sys_days(std::chrono::January / 31 / 2026) + 12h + 5min + 7s + 42us;

inline Dictionary stylesNamed(const std::string& name) {
  Dictionary record, root;
  record.set(keyNameName, name);
  root.set(keyNameStyle, Array{record});
  return root;
}

// A style file whose former ones are kept, with a clock that moves a second a write.
class EarlierStylesTest : public testing::Test {
 protected:
  Dictionary read(const EarlierSet& set) {
    const Result<Dictionary> root = earlier.read(set);
    return root ? *root : Dictionary();
  }
  std::vector<EarlierSet> sets() const {
    const Result<std::vector<EarlierSet>> listed = earlier.list();
    EXPECT_TRUE(listed);
    return listed.value_or(std::vector<EarlierSet>());
  }
  std::vector<ChangeKind> kinds() {
    std::vector<ChangeKind> kinds;
    for (const EarlierSet& set : sets()) kinds.push_back(set.kind);
    return kinds;
  }
  void write(const std::string& name, std::optional<ChangeKind> kind = ChangeKind::edit) {
    now += 1s;
    file.allChanged();
    EXPECT_TRUE(file.write(stylesNamed(name), kind));
  }
  TemporaryFolder folder;
  Locations locations{folder.path(), folder.path()};
  PosixFiles files{locations};
  Moment now = noon;
  EarlierStyles earlier{files, folder.at("Earlier"), [this] { return now; }};
  StyleFile file{files, folder.at("styles.plist"), &earlier};
};

}  // namespace tarvo::test
