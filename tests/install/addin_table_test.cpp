// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "install/addin_table.h"

#include "platform/services/failure_text.h"
#include "tests/install/addin_world.h"

namespace tarvo::test {
namespace {

using namespace addin_keys;

class AddinTables : public testing::Test, protected AddinWorld {
 protected:
  AddinTables() {
    resource("Macros/2011/Tarvo.dotm", "word");
    resource("Macros/2011/Tarvo.xlam", "excel");
    resource("Mail/Tarvo/a.scpt", "mail");
    resource("Outlook/Tarvo/a.scpt", "outlook");
    ship({word2011(), excel2011(), appleMail(), outlook2011()});
    setUp({word2011(), excel2011(), appleMail(), outlook2011()});
    EXPECT_TRUE(start());
    log.clear();
  }
  bool officeStatus(int row) { return *office.cell("Value", row).checked; }
  bool mailStatus(int row) { return *mail.cell("Value", row).checked; }
  void failFirstUse() { files.disturb(0, FaultyFiles::forbid); }

  TableView& office = outlets.officeTableView;
  TableView& mail = outlets.mailTableView;
};

TEST_F(AddinTables, keepWhyATickFailedWithItsRow) {
  const Failure failure{real("/Applications/O11/Office/Startup/Word/Tarvo.dotm").text(), Attempt::write,
                        std::make_error_code(std::errc::permission_denied)};
  failFirstUse();
  office.userTick(0, true);
  ASSERT_NE(table.failureOf({AddinKind::office, 0}), nullptr);
  EXPECT_EQ(*table.failureOf({AddinKind::office, 0}), failure);
  EXPECT_EQ(table.failureOf({AddinKind::office, 1}), nullptr);
  EXPECT_EQ(table.failureOf({AddinKind::mail, 0}), nullptr);
  const std::string words = failureText(failure, texts);
  EXPECT_EQ(outlets.officeReasonField.stringValue(), words);
  EXPECT_EQ(outlets.mailReasonField.stringValue(), "");
  panes.tab.selectPage(1);
  office.selectRows({1});
  table.fIsInstalled = false;
  office.selectRows({1});
  table.selectionDidChange(office);
  EXPECT_EQ(outlets.officeReasonField.stringValue(), "") << "another row";
  office.selectRows({0});
  table.selectionDidChange(office);
  EXPECT_EQ(outlets.officeReasonField.stringValue(), words);
  office.userTick(0, true);
  EXPECT_EQ(table.failureOf({AddinKind::office, 0}), nullptr);
  EXPECT_EQ(outlets.officeReasonField.stringValue(), "");
}

TEST_F(AddinTables, tellOfASelectedRowInWhatItDiffersFromTheProducts) {
  folder.write(item(word2011()), "not word");
  folder.write(item(appleMail()) + "/a.scpt", "");
  ASSERT_TRUE(start());
  log.clear();
  panes.tab.selectPage(1);
  office.selectRows({0});
  table.selectionDidChange(office);
  const Failure foreign{folder / item(word2011()), Attempt::check, Reason::foreign};
  EXPECT_EQ(outlets.officeReasonField.stringValue(), failureText(foreign, texts));
  EXPECT_TRUE(officeText().ends_with("«OfficeisInstalled»")) << officeText();
  office.selectRows({1});
  table.selectionDidChange(office);
  EXPECT_EQ(outlets.officeReasonField.stringValue(), "");
  panes.tab.selectPage(2);
  mail.selectRows({0});
  table.selectionDidChange(mail);
  const Failure emptied{folder / (item(appleMail()) + "/a.scpt"), Attempt::check, Reason::emptied};
  EXPECT_EQ(outlets.mailReasonField.stringValue(), failureText(emptied, texts));
  EXPECT_TRUE(log.empty()) << "no beep for what others did";
}

TEST_F(AddinTables, countTheirRowsByTag) {
  EXPECT_EQ(table.numberOfRowsInTableView(office), 2);
  EXPECT_EQ(table.numberOfRowsInTableView(mail), 2);
  ship({appleMail(), outlook2011()});
  ASSERT_TRUE(lists.searchOfficeApplication());
  EXPECT_EQ(table.numberOfRowsInTableView(office), 0) << "none is not -1";
  TableView other(panes, "other");
  other.setTag(2);
  EXPECT_EQ(table.numberOfRowsInTableView(other), -1);
  EXPECT_EQ(table.objectValueForTableColumn(other, "AppName", 0), CellValue());
}

TEST_F(AddinTables, showStateNameAndVersionAndNothingElse) {
  EXPECT_EQ(office.cell("Value", 0).checked, false);
  EXPECT_EQ(office.cell("AppName", 0).text, "Word 2011");
  EXPECT_EQ(office.cell("Version", 1).text, "2011");
  EXPECT_EQ(mail.cell("AppName", 1).text, "Outlook 2011");
  EXPECT_EQ(mail.cell("Value", 1).checked, false);
  for (const char* column : {"X", "AppPath", "InstallStatus", ""}) EXPECT_EQ(office.cell(column, 0), CellValue());
  EXPECT_EQ(mail.cell("Version", 0), CellValue());
  for (const int row : {-1, 2}) EXPECT_EQ(table.objectValueForTableColumn(office, "AppName", row), CellValue());
}

TEST_F(AddinTables, installAMacroAndSaySo) {
  office.userTick(0, true);
  EXPECT_EQ(folder.read(item(word2011())), "word");
  EXPECT_EQ(officeText(), "Word 2011«OfficeInstallIsSuccessed»");
  EXPECT_TRUE(officeStatus(0));
  EXPECT_FALSE(officeStatus(1));
  EXPECT_EQ(log, Log{});
}

TEST_F(AddinTables, clearTheBoxOfAMacroThatWasThereAlready) {
  folder.write(item(word2011()), "the user's");
  office.userTick(0, true);
  EXPECT_EQ(folder.read(item(word2011())), "the user's");
  EXPECT_EQ(officeText(), "Word 2011«OfficeInstallIsFailed»");
  EXPECT_FALSE(officeStatus(0)) << "though the disk says otherwise";
  EXPECT_EQ(log, Log{"beep"});
  office.reloadData();
  EXPECT_FALSE(officeStatus(0)) << "looking again does not look at the disk";
}

TEST_F(AddinTables, removeAMacroAlsoWhenItIsGoneAlready) {
  office.userTick(0, true);
  office.userTick(0, false);
  EXPECT_FALSE(folder.exists(item(word2011())));
  EXPECT_EQ(officeText(), "Word 2011«OfficeUnInstallIsSuccessed»");
  EXPECT_FALSE(officeStatus(0));
  office.userTick(0, false);
  EXPECT_EQ(officeText(), "Word 2011«OfficeUnInstallIsSuccessed»");
  EXPECT_EQ(log, Log{});
}

TEST_F(AddinTables, keepTheBoxOfAMacroThatCannotBeRemoved) {
  office.userTick(0, true);
  failFirstUse();
  office.userTick(0, false);
  EXPECT_EQ(officeText(), "Word 2011«OfficeUnInstallIsFailed»");
  EXPECT_TRUE(officeStatus(0));
  EXPECT_EQ(log, Log{"beep"});
}

TEST_F(AddinTables, tellOfScriptsInTheirOwnField) {
  mail.userTick(1, true);
  EXPECT_EQ(mailText(), "Outlook 2011«MailInstallIsSuccessed»");
  EXPECT_TRUE(mailStatus(1));
  mail.userTick(1, true);
  EXPECT_EQ(mailText(), "Outlook 2011«MailInstallIsFailed»");
  EXPECT_FALSE(mailStatus(1));
  mail.userTick(1, false);
  EXPECT_EQ(mailText(), "Outlook 2011«MailUnInstallIsSuccessed»");
  EXPECT_FALSE(mailStatus(1));
  mail.userTick(1, false);
  EXPECT_EQ(mailText(), "Outlook 2011«MailUnInstallIsFailed»");
  EXPECT_TRUE(mailStatus(1)) << "a folder that is not there cannot be removed";
  EXPECT_EQ(log, (Log{"beep", "beep"}));
  EXPECT_EQ(officeText(), "");
}

TEST_F(AddinTables, leaveTheResultInTheFieldWhenTheClickAlsoSelects) {
  panes.tab.selectPage(1);
  office.selectRows({0});
  EXPECT_EQ(officeText(), "/Applications/O11/Word.app\n\nWord 2011«OfficeisNotInstalled»");
  office.userTick(1, true);
  EXPECT_EQ(office.selectedRow(), 1);
  EXPECT_EQ(officeText(), "Excel 2011«OfficeInstallIsSuccessed»");
  EXPECT_FALSE(table.fIsInstalled);
  office.userSelect({0});
  EXPECT_EQ(officeText(), "/Applications/O11/Word.app\n\nWord 2011«OfficeisNotInstalled»");
  office.userSelect({1});
  EXPECT_EQ(officeText(), "/Applications/O11/Excel.app\n\nExcel 2011«OfficeisInstalled»");
}

TEST_F(AddinTables, keepBackOneSelectionAfterAnEditHoweverLateAndInWhicheverTable) {
  panes.tab.selectPage(1);
  office.selectRows({0});
  office.userTick(0, true);  // the row was selected: no selection follows
  EXPECT_TRUE(table.fIsInstalled);
  panes.tab.selectPage(2);
  mail.userSelect({0});
  EXPECT_EQ(mailText(), "");
  mail.userSelect({1});
  EXPECT_EQ(mailText(), "Outlook 2011«MailisNotInstalled»");
}

TEST_F(AddinTables, takeAnEditOfAnotherColumnAsAnEditWithoutEffect) {
  table.setObjectValue(office, true, "AppName", 0);
  EXPECT_TRUE(table.fIsInstalled);
  EXPECT_FALSE(folder.exists(item(word2011())));
  EXPECT_EQ(officeText(), "");
  TableView other(panes, "other");
  other.setTag(2);
  table.fIsInstalled = false;
  table.setObjectValue(other, true, "Value", 0);
  EXPECT_TRUE(table.fIsInstalled);
  table.setObjectValue(office, true, "Value", 9);
  EXPECT_EQ(officeText(), "");
}

TEST_F(AddinTables, tellOfTheTableOfTheShownPaneWhicheverSends) {
  office.selectRows({1});
  mail.selectRows({0});
  EXPECT_EQ(officeText() + mailText(), "") << "the style pane is shown";
  panes.tab.selectPage(1);
  table.selectionDidChange(mail);
  EXPECT_EQ(officeText(), "/Applications/O11/Excel.app\n\nExcel 2011«OfficeisNotInstalled»");
  EXPECT_EQ(mailText(), "");
  panes.tab.selectPage(2);
  table.selectionDidChange(office);
  EXPECT_EQ(mailText(), "Mail«MailisNotInstalled»") << "no path";
}

TEST_F(AddinTables, keepTheTextWhenNothingIsSelected) {
  panes.tab.selectPage(1);
  office.selectRows({0});
  const std::string before = officeText();
  office.deselectAll();
  EXPECT_EQ(officeText(), before);
}

TEST_F(AddinTables, letEveryRowBeSelected) {
  for (const int row : {-1, 0, 1, 7}) {
    EXPECT_TRUE(table.shouldSelectRow(office, row));
    EXPECT_TRUE(table.shouldSelectRow(mail, row));
  }
  EXPECT_EQ(officeText() + mailText(), "");
}

}  // namespace
}  // namespace tarvo::test
