// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QTabWidget>
#include <QTableView>
#include <QTest>

#include "qt/window/sheet.h"
#include "tests/qt/qt_hand.h"
#include "tests/qt/test_window.h"

namespace tarvo {
namespace {

struct DictionaryPage : testing::Test, test::TestWindow {
  DictionaryPage() {
    qputenv("TARVO_NO_ANIMATION", "1");
    start();
    hand.emplace(shell->registry());
  }
  QTableView& list() { return widget<QTableView>("style.ejTDTable"); }
  QDialog& sheet() { return widget<QDialog>("style.NewDicWindow"); }
  std::vector<std::string> names(const TableView& table) {
    std::vector<std::string> all;
    for (int row = 0; row < table.numberOfRows(); ++row) all.push_back(table.cell("name", row).text);
    return all;
  }
  std::vector<std::string> loaded() { return names(interface().lists.ejTDTable); }
  // Adds the first three dictionaries that the picker offers.
  void loadMore() {
    QTimer::singleShot(0, &window(), [this] {
      settle();
      for (int row = 0; row < 3; ++row) hand->tick(interface().picker.techDicTable, row, true);
      hand->press(interface().picker.okButton);
    });
    hand->press(interface().lists.ejLoadDicButton);
    window().activateWindow();  // what a window manager does
    settle();
  }
  void showList(int page) {
    hand->selectPage(interface().lists.ejListTab, page);
    settle();
  }
  void openSheet() {
    showList(1);
    hand->press(interface().newDictionary.ejUDNewButton);
    settle();
  }
  QString folderOfDictionaries() { return toQString(product->paths().tarvoPathUserDicFolderURL().text()); }

  std::optional<test::QtHand> hand;
};

TEST_F(DictionaryPage, keysMoveAndRemoveWhatTheButtonsDo) {
  loadMore();
  const std::vector<std::string> before = loaded();
  ASSERT_GE(before.size(), 3U);
  hand->select(interface().lists.ejTDTable, {1});
  QTest::keyClick(&list(), Qt::Key_Up, Qt::AltModifier);
  std::vector<std::string> moved = before;
  std::swap(moved[0], moved[1]);
  EXPECT_EQ(loaded(), moved);
  EXPECT_EQ(interface().lists.ejTDTable.selectedRow(), 0);
  QTest::keyClick(&list(), Qt::Key_Up, Qt::AltModifier);  // the button is off at the top
  EXPECT_EQ(loaded(), moved);
  QTest::keyClick(&list(), Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(loaded(), before);
  QTest::keyClick(&list(), Qt::Key_Delete);
  moved = before;
  moved.erase(moved.begin() + 1);
  EXPECT_EQ(loaded(), moved);
  EXPECT_EQ(inStep(), "");
}

TEST_F(DictionaryPage, theKeysOfTheListAreItsOwn) {
  const std::vector<std::string> before = loaded();
  hand->select(interface().lists.ejTDTable, {0});
  auto& styles = widget<QWidget>("style.stylePopup");
  styles.setFocus();
  QTest::keyClick(&styles, Qt::Key_Delete);
  EXPECT_EQ(loaded(), before);
}

TEST_F(DictionaryPage, saysHowManyOfHowMany) {
  auto* count = window().findChild<QLabel*>("style.ejTDTable.count");
  ASSERT_NE(count, nullptr);
  const int rows = list().model()->rowCount();
  EXPECT_EQ(count->text(), QString("%1 of 8").arg(rows));
  hand->select(interface().lists.ejTDTable, {0});
  hand->press(interface().lists.ejRemoveDicButton);
  EXPECT_EQ(count->text(), QString("%1 of 8").arg(rows - 1));
}

TEST_F(DictionaryPage, severalRowsAreDraggedToTheEnd) {
  loadMore();
  std::vector<std::string> before = loaded();
  ASSERT_GE(before.size(), 3U);
  hand->drag(interface().lists.ejTDTable, {0, 1}, interface().lists.ejTDTable, static_cast<int>(before.size()),
             DropOperation::above);
  std::rotate(before.begin(), before.begin() + 2, before.end());
  EXPECT_EQ(loaded(), before);
  EXPECT_EQ(inStep(), "");
}

TEST_F(DictionaryPage, aNewUserDictionaryAppearsInItsList) {
  openSheet();
  EXPECT_EQ(sheetOver(window()), &sheet());
  auto& name = widget<QLineEdit>("style.NewDicNameField");
  EXPECT_TRUE(name.hasFocus());
  QTest::keyClicks(&name, "Terms of trade");
  QTest::keyClick(&name, Qt::Key_Return);
  settle();
  EXPECT_EQ(sheetOver(window()), nullptr);
  EXPECT_TRUE(QFile::exists(folderOfDictionaries() + "/Terms of trade.eud2"));
  const std::vector<std::string> shown = names(interface().userLists.ejUDTableView);
  EXPECT_TRUE(std::any_of(shown.begin(), shown.end(),
                          [](const std::string& text) { return text.rfind("Terms of trade", 0) == 0; }));
  EXPECT_EQ(inStep(), "");
}

TEST_F(DictionaryPage, escapeLeavesTheSheetWithoutADictionary) {
  openSheet();
  auto& name = widget<QLineEdit>("style.NewDicNameField");
  QTest::keyClicks(&name, "Never made");
  QTest::keyClick(&name, Qt::Key_Escape);
  EXPECT_EQ(sheetOver(window()), nullptr);
  EXPECT_FALSE(QFile::exists(folderOfDictionaries() + "/Never made.eud2"));
  EXPECT_EQ(inStep(), "");
}

TEST_F(DictionaryPage, theSheetOpensAgainWithTheKeyboardInItsField) {
  openSheet();
  auto& name = widget<QLineEdit>("style.NewDicNameField");
  widget<QWidget>("style.NewDicOKButton").setFocus();
  QTest::keyClick(&name, Qt::Key_Escape);
  hand->choose(interface().newDictionary.newJETMAMenu);
  settle();
  EXPECT_TRUE(name.hasFocus());
  EXPECT_EQ(widget<QLabel>("style.NewDicText").text(), "New Japanese–English translation memory");
  EXPECT_EQ(inStep(), "");
}

TEST_F(DictionaryPage, underTheSheetTheWindowIsShutAndTheMenusShowWhatIsAllowed) {
  openSheet();
  auto& item = widget<QWidget>("manager.OA");
  QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, item.mapTo(&window(), item.rect().center()));
  settle();
  EXPECT_EQ(interface().manager.myTabView.selectedPage(), 0);
  EXPECT_THROW(hand->press(interface().manager.OA), NotReachable);
  EXPECT_THROW(hand->choose(interface().manager.officeAddinMenu), NotReachable);
  window().close();
  EXPECT_FALSE(shell->program().isTerminated());
  QMenuBar& bar = *window().findChild<QMenuBar*>();
  const QPoint file = bar.mapTo(&window(), bar.actionGeometry(bar.actions()[0]).center());
  QTest::mouseClick(window().windowHandle(), Qt::LeftButton, {}, file);
  ASSERT_NE(QApplication::activePopupWidget(), nullptr);
  EXPECT_FALSE(widget<QAction>("style.quitMenu").isEnabled());
  QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
  QTest::keyClick(&sheet(), Qt::Key_Escape);
  hand->press(interface().manager.OA);
  EXPECT_EQ(interface().manager.myTabView.selectedPage(), 1);
}

}  // namespace
}  // namespace tarvo
