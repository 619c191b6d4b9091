// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeView>

#include "platform/controls/outlets.h"
#include "platform/controls/windows.h"
#include "qt/window/alert_dialog.h"
#include "qt/window/qt_panels.h"
#include "qt/window/save_sheet.h"
#include "qt/window/sheet.h"
#include "tests/support/temporary_folder.h"

namespace tarvo {
namespace {

struct SomeOutlets : Outlets {
  Window window{*this, "window"};
  SomeOutlets() : Outlets("test") {}
};

struct PanelsTest : testing::Test {
  AlertDialog& alert() { return *dynamic_cast<AlertDialog*>(QApplication::activeModalWidget()); }
  SomeOutlets outlets;
  QWidget host;
  QtPanels panels{{[this](Window&) { return &host; }, [this](QDialog& sheet, Window&) { openSheet(sheet, host, 30); }}};
  test::TemporaryFolder folder;
  const Alert question{"Replace?", "The style is replaced.", {"Cancel", "Replace"}, ""};
};

TEST_F(PanelsTest, anAlertAnswersTheButtonThatWasPressed) {
  for (int button = 0; button < 2; ++button) {
    QTimer::singleShot(0, &host, [&] { alert().findChild<QPushButton*>(QString("alert.%1").arg(button))->click(); });
    EXPECT_EQ(panels.runAlertPanel(question), button);
  }
}

TEST_F(PanelsTest, returnIsTheFirstButtonAndEscapeTheLast) {
  for (const auto& [key, button] : {std::pair(Qt::Key_Return, 0), std::pair(Qt::Key_Escape, 1)}) {
    QTimer::singleShot(0, &host, [&, pressed = key] { QTest::keyClick(&alert(), pressed); });
    EXPECT_EQ(panels.runAlertPanel(question), button);
  }
}

TEST_F(PanelsTest, returnIsTheButtonThatHasTheKeyboard) {
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
    QTimer::singleShot(0, &host, [&, key] {
      auto* other = alert().findChild<QPushButton*>("alert.1");
      other->setFocus(Qt::TabFocusReason);
      QTest::keyClick(other, key);
    });
    EXPECT_EQ(panels.runAlertPanel(question), 1) << "what is about to be lost is not lost by the wrong key";
  }
}

TEST_F(PanelsTest, theFirstButtonStandsRightmostAndTextsAreShownAsTheyAre) {
  AlertDialog dialog({"<b>Title</b>", "100 % of %d", {"First", "Second", "Third"}, "details"}, "Details", nullptr);
  dialog.show();
  const auto left = [&](const char* name) { return dialog.findChild<QPushButton*>(name)->x(); };
  EXPECT_GT(left("alert.0"), left("alert.1"));
  EXPECT_GT(left("alert.1"), left("alert.2"));
  EXPECT_EQ(dialog.windowTitle(), "<b>Title</b>");
}

TEST_F(PanelsTest, theDetailsOfAnAlertComeUpWhereTheirButtonIsPressed) {
  AlertDialog dialog({"Not imported", "No style.", {"Close"}, "<i>TOpt3</i> is 4"}, "Details", nullptr);
  dialog.show();
  auto* text = dialog.findChild<QPlainTextEdit*>();
  ASSERT_NE(text, nullptr);
  EXPECT_FALSE(text->isVisible());
  EXPECT_EQ(dialog.focusWidget(), dialog.findChild<QPushButton*>("alert.0")) << "Return closes the alert";
  dialog.findChild<QPushButton*>("alert.details")->click();
  EXPECT_TRUE(text->isVisible());
  EXPECT_EQ(dialog.focusWidget(), text) << "assistive tools read what has the keyboard";
  EXPECT_EQ(text->toPlainText(), "<i>TOpt3</i> is 4");
  EXPECT_EQ(text->accessibleName(), "Details");
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_EQ(dialog.result(), 0);
}

TEST_F(PanelsTest, anAlertWithoutDetailsHasNoButtonForThem) {
  const AlertDialog dialog(question, "Details", nullptr);
  EXPECT_EQ(dialog.findChild<QPushButton*>("alert.details"), nullptr);
}

TEST_F(PanelsTest, aSheetReturnsAtOnceHangsInItsHostAndTellsItsButton) {
  host.setGeometry(100, 100, 700, 400);
  host.show();
  int told = -1;
  panels.beginAlertSheet(outlets.window, question, [&](int button) { told = button; });
  EXPECT_EQ(told, -1);
  auto* sheet = host.findChild<AlertDialog*>();
  ASSERT_NE(sheet, nullptr);
  EXPECT_TRUE(sheet->isVisible());
  EXPECT_EQ(sheet->geometry().top(), host.mapToGlobal(QPoint(0, 30)).y());
  host.move(140, 160);
  QApplication::processEvents();
  EXPECT_EQ(sheet->geometry().top(), host.mapToGlobal(QPoint(0, 30)).y());
  sheet->findChild<QPushButton*>("alert.1")->click();
  EXPECT_EQ(told, 1);
}

// What the panel is opened with, what the user types, what comes back.
struct Saved {
  const char *type, *name, *proposed, *typed, *path;
};
constexpr Saved saved[] = {{"whstyle", "Beta", "Beta.whstyle", nullptr, "Beta.whstyle"},
                           {"whstyle", "v1.2", "v1.2.whstyle", "v1.3", "v1.3.whstyle"},
                           {"whstyle", "日本", "日本.whstyle", "a.WHSTYLE", "a.WHSTYLE"},
                           {"whstyle", "~x", "~x.whstyle", nullptr, "~x.whstyle"},
                           {"", "Beta", "Beta", "c", "c"}};

TEST_F(PanelsTest, aSavePanelIsASheetWhoseAnswerHasTheType) {
  host.show();
  folder.makeFolder("styles");
  for (const Saved& each : saved) {
    std::string answer;
    panels.beginSavePanel(outlets.window, {"", each.type, folder.at("styles"), each.name},
                          [&](int code, const DiskPath& path) { answer = std::to_string(code) + " " + path.text(); });
    auto* sheet = dynamic_cast<SaveSheet*>(sheetOver(host));
    ASSERT_NE(sheet, nullptr);
    EXPECT_EQ(sheet->geometry().top(), host.mapToGlobal(QPoint(0, 30)).y());
    auto* name = sheet->findChild<QLineEdit*>("fileNameEdit");
    EXPECT_EQ(name->text(), each.proposed);
    if (each.typed != nullptr) name->setText(each.typed);
    QTest::keyClick(name, Qt::Key_Return);
    EXPECT_EQ(answer, "1 " + (folder / "styles/" + each.path));
    EXPECT_EQ(sheetOver(host), nullptr);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

TEST_F(PanelsTest, aCancelledSavePanelHasNoPath) {
  host.show();
  folder.makeFolder("styles");
  std::string answer;
  panels.beginSavePanel(outlets.window, {"", "whstyle", folder.at("styles"), "Beta"},
                        [&](int code, const DiskPath& path) { answer = std::to_string(code) + path.text(); });
  QTest::keyClick(sheetOver(host), Qt::Key_Escape);
  EXPECT_EQ(answer, "0");
}

TEST_F(PanelsTest, aFolderThatIsTypedIsEntered) {
  host.show();
  folder.makeFolder("styles/inner");
  std::string answer;
  panels.beginSavePanel(outlets.window, {"", "whstyle", folder.at("styles"), "Beta"},
                        [&](int code, const DiskPath&) { answer = std::to_string(code); });
  auto* sheet = dynamic_cast<SaveSheet*>(sheetOver(host));
  sheet->findChild<QLineEdit*>("fileNameEdit")->setText("inner");
  sheet->accept();
  EXPECT_EQ(answer, "");
  EXPECT_TRUE(sheet->directory().path().endsWith("/styles/inner"));
  sheet->reject();
}

TEST_F(PanelsTest, anOpenPanelTakesFilesOfItsTypeInAnyCase) {
  EXPECT_EQ(nameFilter({"whstyle"}), QString("*.whstyle (*.[wW][hH][sS][tT][yY][lL][eE])"));
  EXPECT_EQ(nameFilter({}), QString());
  folder.write("a.WhStyle", "");
  const QString path = QString::fromStdString(folder / "a.WhStyle");
  QTimer::singleShot(0, &host, [&] {
    auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    EXPECT_EQ(panel->windowTitle(), "Select");
    EXPECT_EQ(panel->fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(panel->selectedNameFilter(), QString("*.whstyle"));
    EXPECT_TRUE(panel->findChild<QTreeView*>("treeView")->isColumnHidden(2));
    EXPECT_TRUE(panel->findChild<QComboBox*>("fileTypeCombo")->isVisible());
    panel->findChild<QLineEdit*>("fileNameEdit")->setText(path);
    QMetaObject::invokeMethod(panel, "accept");
  });
  EXPECT_EQ(panels.runOpenPanel({.title = "Select", .types = {"whstyle"}}), DiskPath(path.toStdString()));
  QTimer::singleShot(0, &host, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
  EXPECT_EQ(panels.runOpenPanel({.title = "Select", .types = {"whstyle"}}), std::nullopt);
}

TEST_F(PanelsTest, aFolderPanelTakesAFolder) {
  folder.makeFolder("styles");
  QTimer::singleShot(0, &host, [&] {
    auto* panel = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    EXPECT_EQ(panel->fileMode(), QFileDialog::Directory);
    EXPECT_FALSE(panel->findChild<QComboBox*>("fileTypeCombo")->isVisible());
    panel->findChild<QLineEdit*>("fileNameEdit")->setText(QString::fromStdString(folder / "styles"));
    QMetaObject::invokeMethod(panel, "accept");
  });
  EXPECT_EQ(panels.runOpenPanel({.title = "Select", .foldersOnly = true}), folder.at("styles"));
}

TEST_F(PanelsTest, escapeIsTheButtonThatTheAlertNames) {
  Alert careful = question;
  careful.cancelButton = 0;
  QTimer::singleShot(0, &host, [&] { QTest::keyClick(&alert(), Qt::Key_Escape); });
  EXPECT_EQ(panels.runAlertPanel(careful), 0);
}

}  // namespace
}  // namespace tarvo
