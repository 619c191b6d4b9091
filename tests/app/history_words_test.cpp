// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "platform/posix/posix_files.h"
#include "platform/services/locations.h"
#include "platform/services/texts.h"
#include "style/earlier_styles.h"

// The words that the window of earlier styles takes from the shipped tables.
namespace tarvo::test {
namespace {

TEST(HistoryWords, whateverReplacedStylesHasANameInBothLanguages) {
  const Locations locations("/", "/");
  const PosixFiles files(locations);
  for (const std::string language : {"en", "ja"}) {
    Texts texts;
    const DiskPath table(TARVO_SOURCE_DIR "/resources/" + language + ".lproj/Localizable.strings");
    ASSERT_TRUE(overlayTableFile(texts, files, table));
    for (int kind = 0; kind <= static_cast<int>(lastChangeKind); ++kind) {
      const std::string key = "History.kind." + std::string(nameOf(static_cast<ChangeKind>(kind)));
      EXPECT_NE(texts.find(key), nullptr) << language << ": " << key;
    }
  }
}

}  // namespace
}  // namespace tarvo::test
