// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include "tests/style/exchange_world.h"
#include "tests/style/random_styles.h"
#include "tests/support/sample_styles.h"
#include "tests/support/shell.h"
#include "tests/support/temporary_folder.h"

// Styles that travel as files: from one user's styles into another's, and on from there.
namespace tarvo::test {
namespace {

constexpr int styles = 1000;

std::string exported(ExchangeWorld& world, int index) {
  world.pane.stylePopup.selectItemAtIndex(index);
  world.exchange.exportStyle();
  world.panels.endSavePanel(1, "/out.whstyle");
  return world.files.bytes("/out.whstyle");
}

void import(ExchangeWorld& world, const std::string& bytes) {
  world.files.put("/in.whstyle", bytes);
  ASSERT_TRUE(world.import("/in.whstyle", 3, "Beta")) << bytes;
}

TEST(CarriedStyles, keepEveryTypeAndValueForAnotherReaderAndLeaveAsTheyCame) {
  const TemporaryFolder folder;
  ExchangeWorld from, to;
  from.open(sampleRoot());
  to.open(sampleRoot());
  for (int i = 0; i < styles; ++i) {
    from.store.setStyle(1, RandomStyles(static_cast<unsigned>(i)).style());
    const std::string first = exported(from, 1);
    import(to, first);
    folder.write(std::to_string(i) + ".whstyle", first);
    folder.write(std::to_string(i) + ".plist", to.files.bytes("/styles.plist"));
    const std::string second = exported(to, 3);
    import(from, second);
    ASSERT_EQ(exported(from, 3), second) << "style " << i;
  }
  const std::string script = quoted(TARVO_SOURCE_DIR "/tests/style/carried_styles.py");
  EXPECT_EQ(outputOf("python3 " + script + ' ' + test::quoted(folder.path()) + ' ' + std::to_string(styles)),
            std::to_string(styles) + " compared\n");
}

}  // namespace
}  // namespace tarvo::test
