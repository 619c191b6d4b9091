// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <filesystem>
#include <fstream>

#include "tests/qt/qt_hand.h"
#include "tests/qt/test_window.h"

// The Office pane and the mail pane, worked as a user works them.
namespace tarvo {
namespace {

struct AddinPanes : testing::Test, test::TestWindow {
  AddinPanes() { qputenv("TARVO_NO_ANIMATION", "1"); }
  void begin(int pane, const std::string& language = "en") {
    start(language);
    hand.emplace(shell->registry());
    hand->press(pane == 1 ? interface().manager.OA : interface().manager.MT);
    settle();
  }
  QTableView& office() { return widget<QTableView>("manager.officeTableView"); }
  QTableView& mail() { return widget<QTableView>("manager.mailTableView"); }
  QLabel& officeInfo() { return widget<QLabel>("manager.officeInfoField"); }
  std::string macro() const {
    return root() + "/Applications/Microsoft Office 2011/Office/Startup/Word/TarvoWord.dotm";
  }
  std::optional<test::QtHand> hand;
};

TEST_F(AddinPanes, aRowIsABoxANameAndAVersionUnderTheirTitles) {
  begin(1);
  ASSERT_GT(office().model()->rowCount(), 0);
  EXPECT_EQ(office().model()->headerData(1, Qt::Horizontal).toString(), "Application");
  EXPECT_EQ(office().model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Unchecked);
  EXPECT_EQ(office().model()->index(0, 0).data(Qt::AccessibleTextRole).toString(), "Word 2011");
  EXPECT_EQ(office().model()->index(0, 1).data().toString(), "Word 2011");
  EXPECT_EQ(office().model()->index(0, 2).data().toString(), "2011");
  EXPECT_EQ(inStep(), "");
}

TEST_F(AddinPanes, theSpaceBarTicksTheSelectedRow) {
  begin(1);
  hand->select(interface().addins.officeTableView, {0});
  EXPECT_TRUE(officeInfo().text().contains("Microsoft Word.app"));
  QTest::keyClick(&office(), Qt::Key_Space);
  EXPECT_TRUE(std::filesystem::exists(macro()));
  EXPECT_TRUE(officeInfo().text().startsWith("Word 2011"));
  EXPECT_FALSE(officeInfo().text().contains("Microsoft Word.app"));
  EXPECT_EQ(officeInfo().accessibleDescription(), officeInfo().text());
  EXPECT_EQ(office().model()->index(0, 0).data(Qt::CheckStateRole).toInt(), Qt::Checked);
  QTest::keyClick(&office(), Qt::Key_Space);
  EXPECT_FALSE(std::filesystem::exists(macro()));
  EXPECT_EQ(inStep(), "");
}

TEST_F(AddinPanes, aClickOnABoxInstallsAndSelectsItsRow) {
  begin(1);
  hand->tick(interface().addins.officeTableView, 0, true);
  EXPECT_TRUE(std::filesystem::exists(macro()));
  EXPECT_EQ(interface().addins.officeTableView.selectedRow(), 0);
  EXPECT_EQ(officeInfo().text().toStdString(), "Word 2011" + product->texts().localized("OfficeInstallIsSuccessed"));
  EXPECT_EQ(inStep(), "");
}

TEST_F(AddinPanes, aSelectedRowSaysThatItsMacroIsNotTheProducts) {
  for (const auto& [language, word] : {std::pair("en", "emptied"), {"ja", "空"}}) {
    begin(1, language);
    const auto& reason = widget<QLabel>("manager.officeReasonField");
    hand->tick(interface().addins.officeTableView, 0, true);
    EXPECT_EQ(reason.text(), "");
    std::ofstream(macro()).close();
    hand->select(interface().addins.officeTableView, {1});
    EXPECT_EQ(reason.text(), "");
    hand->select(interface().addins.officeTableView, {0});
    EXPECT_TRUE(reason.text().startsWith(QString::fromStdString(macro()))) << reason.text().toStdString();
    EXPECT_TRUE(reason.text().contains(word)) << reason.text().toStdString();
    settle();
    EXPECT_GE(reason.height(), reason.heightForWidth(reason.width())) << "all of it is to be read";
    EXPECT_EQ(inStep(), "");
    std::filesystem::remove(macro());
    hand.reset();
    end();
  }
}

TEST_F(AddinPanes, toolsHaveTheirIcons) {
  begin(1);
  const auto& tools = widget<QComboBox>("manager.officeToolPopup");
  ASSERT_EQ(tools.count(), 7);
  for (int i = 0; i < tools.count(); ++i) EXPECT_FALSE(tools.itemIcon(i).isNull()) << tools.itemText(i).toStdString();
}

TEST_F(AddinPanes, aProductWithoutApplicationsSaysSo) {
  std::filesystem::remove_all(root() + "/Applications");
  begin(1);
  EXPECT_EQ(office().model()->rowCount(), 0);
  EXPECT_EQ(office().accessibleDescription().toStdString(), product->texts().localized("NoOfficeApplication"));
  hand->press(interface().manager.MT);
  settle();
  EXPECT_EQ(mail().accessibleDescription().toStdString(), product->texts().localized("NoMailProgram"));
  EXPECT_EQ(inStep(), "");
}

struct Caution {
  int pane;
  const char *button, *window, *close;
};

TEST_F(AddinPanes, cautionsStandBesideTheWindowUntilTheyAreClosed) {
  begin(1);
  for (const Caution& caution :
       {Caution{1, "manager.officePowerPointButton", "manager.alertPowerPoint", "manager.powerPointCloseButton"},
        Caution{2, "manager.mailCautionButton", "manager.alertWindowSL", "manager.alertSLCloseButton"}}) {
    hand->press(caution.pane == 1 ? interface().manager.OA : interface().manager.MT);
    settle();
    EXPECT_EQ(shell->registry().find(caution.window), nullptr);  // built when it is first needed
    const auto open = [&] {
      QTest::mouseClick(&widget<QPushButton>(caution.button), Qt::LeftButton);
      settle();
    };
    open();
    auto& dialog = widget<QDialog>(caution.window);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_FALSE(dialog.isModal());
    EXPECT_FALSE(dialog.windowTitle().isEmpty());
    for (QLabel* text : dialog.findChildren<QLabel*>()) {
      EXPECT_FALSE(text->text().isEmpty());
      EXPECT_GE(text->height(), text->heightForWidth(text->width()));
    }
    EXPECT_TRUE(widget<QPushButton>(caution.close).isDefault());
    window().activateWindow();
    settle();
    ASSERT_EQ(QApplication::activeWindow(), &window());
    open();
    EXPECT_EQ(QApplication::activeWindow(), &dialog) << "one that is open comes to the front";
    QTest::mouseClick(&widget<QPushButton>(caution.close), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    open();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(inStep(), "");
  }
}

}  // namespace
}  // namespace tarvo
