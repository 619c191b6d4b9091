// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <QAccessible>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <filesystem>

#include "style/style_keys.h"
#include "tests/qt/main_window_fixture.h"

// Quitting in the window while the styles cannot be saved, with the real alert.
namespace tarvo::test {
namespace {

namespace fs = std::filesystem;

struct QuitQuestionWindow : MainWindowTest {
  // A folder in the place of the style file, whose content is kept aside: nobody can write there.
  void startAndFailToSave(const std::string& language = "en") {
    start(language);
    shell->program().hasUser = true;
    const fs::path styles = shell->program().rooms().store.path().text();
    fs::rename(styles, styles.string() + ".aside");
    fs::create_directory(styles);
    interface().options.indexPopups.front().userChoose(2);
    ASSERT_FALSE(shell->program().rooms().store.isSaved());
  }
  void takeFolderAway() { fs::remove(shell->program().rooms().store.path().text()); }
  bool hasEnded() { return shell->program().isTerminated(); }
  QDialog* alert() {
    for (QWidget* each : QApplication::allWidgets()) {
      if (each->objectName() == QLatin1String("alert") && each->isVisible()) return qobject_cast<QDialog*>(each);
    }
    return nullptr;
  }
  void press(int button) {
    QDialog* shown = alert();
    ASSERT_NE(shown, nullptr);
    QTest::mouseClick(shown->findChild<QPushButton*>(QStringLiteral("alert.%1").arg(button)), Qt::LeftButton);
    settle();
  }
  void closeWindow() {
    window().close();
    settle();
  }
};

TEST_F(QuitQuestionWindow, theCloseBoxAsksOverTheWindowAndQuitsAsItIsTold) {
  startAndFailToSave();
  closeWindow();
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(alert()->parentWidget()->window(), &window());
  EXPECT_FALSE(hasEnded());
  closeWindow();
  press(0);
  EXPECT_TRUE(hasEnded());
  EXPECT_EQ(alert(), nullptr) << "asked once";
}

TEST_F(QuitQuestionWindow, theMenuAsksTooAndATryThatSucceedsEndsTheProgram) {
  startAndFailToSave();
  interface().style.quitMenu.userChoose();
  settle();
  takeFolderAway();
  press(1);
  EXPECT_TRUE(hasEnded());
  EXPECT_TRUE(fs::is_regular_file(shell->program().rooms().store.path().text()));
}

TEST_F(QuitQuestionWindow, aTryThatFailsTellsWhyAndStays) {
  startAndFailToSave();
  closeWindow();
  press(1);
  ASSERT_NE(alert(), nullptr);
  EXPECT_EQ(alert()->findChildren<QPushButton*>().size(), 1);
  press(0);
  EXPECT_EQ(alert(), nullptr);
  EXPECT_FALSE(hasEnded());
  EXPECT_EQ(inStep(), "");
}

TEST_F(QuitQuestionWindow, allStylesAreSavedElsewhere) {
  startAndFailToSave();
  closeWindow();
  press(2);
  auto* panel = window().findChild<QFileDialog*>(QStringLiteral("savePanel"));
  ASSERT_NE(panel, nullptr);
  const std::string chosen = root() + "/all";
  panel->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(toQString(chosen));
  QTest::keyClick(panel, Qt::Key_Return);
  settle();
  EXPECT_TRUE(hasEnded());
  EXPECT_EQ(folder.read("root/all.plist"), writePropertyList(shell->program().rooms().store.root()));
}

TEST_F(QuitQuestionWindow, escapeNeverQuits) {
  startAndFailToSave();
  closeWindow();
  QTest::keyClick(alert(), Qt::Key_Escape);
  settle();
  auto* panel = window().findChild<QFileDialog*>(QStringLiteral("savePanel"));
  ASSERT_NE(panel, nullptr);
  QTest::keyClick(panel, Qt::Key_Escape);
  settle();
  EXPECT_FALSE(hasEnded());
}

TEST_F(QuitQuestionWindow, theEndOfASessionAsksNobody) {
  startAndFailToSave();
  shell->sessionEnds();
  closeWindow();
  EXPECT_TRUE(hasEnded());
  EXPECT_EQ(alert(), nullptr);
}

TEST_F(QuitQuestionWindow, assistiveToolsHearTheQuestionAndItsAnswersInBothLanguages) {
  for (const auto& [language, header, again] : {std::tuple("en", "Your styles could not be saved.", "Try Again"),
                                                std::tuple("ja", "スタイルを保存できませんでした。", "再試行")}) {
    startAndFailToSave(language);
    closeWindow();
    ASSERT_NE(alert(), nullptr);
    EXPECT_EQ(alert()->windowTitle().toStdString(), header);
    auto* button = alert()->findChild<QPushButton*>(QStringLiteral("alert.1"));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(button)->text(QAccessible::Name).toStdString(), again);
    press(0);
    end();
    fs::remove(root() + "/Users/taro/Library/Preferences/Wordhaven/TarvoStyle2009.plist");
  }
}

}  // namespace
}  // namespace tarvo::test
