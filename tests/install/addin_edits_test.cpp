// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_edits.h"

#include "tests/install/addin_world.h"

// The edit of one row, with neither table nor box.
namespace tarvo::test {
namespace {

class AddinEdits : public testing::Test, protected AddinWorld {
 protected:
  AddinEdits() {
    ship({word2011(), outlook2011()});
    setUp({word2011(), outlook2011()});
    resource("Macros/2011/Tarvo.dotm", "macro");
    resource("Outlook/Tarvo/a.scpt", "script");
    EXPECT_TRUE(lists.searchOfficeApplication());
  }
  Result<> edit(AddinPlace place, bool on) { return setInstalled(lists, place, on, macros, mailScripts); }
  const AddinEntry& row(AddinPlace place) const { return lists.rowsOf(place.kind).at(0); }
  static constexpr AddinPlace word{AddinKind::office, 0}, outlook{AddinKind::mail, 0};
};

TEST_F(AddinEdits, aMacroAndScriptsAreInstalledAndTakenOutAndTheRowSaysSo) {
  for (const AddinPlace place : {word, outlook}) {
    for (const bool on : {true, false}) {
      EXPECT_TRUE(edit(place, on));
      EXPECT_EQ(isMarkedInstalled(row(place)), on);
      EXPECT_EQ(folder.exists(item(row(place))), on);
    }
  }
}

TEST_F(AddinEdits, aFailureSaysWhyAndLeavesTheRowAsItWas) {
  folder.write(item(row(word)), "of the user");
  const Result<> installed = edit(word, true);
  ASSERT_FALSE(installed);
  EXPECT_EQ(installed.error().cause, std::errc::file_exists);
  EXPECT_FALSE(isMarkedInstalled(row(word))) << "though something lies there";
  lists.setInstallStatus(outlook, true);
  EXPECT_FALSE(edit(outlook, false)) << "there are no scripts to take out";
  EXPECT_TRUE(isMarkedInstalled(row(outlook)));
}

}  // namespace
}  // namespace tarvo::test
