// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QComboBox>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDialog>
#include <QDropEvent>
#include <QMimeData>
#include <QPushButton>
#include <QTest>
#include <QUrl>

#include "qt/window/alert_dialog.h"
#include "style/sibling_tools.h"
#include "tests/qt/private_bus.h"
#include "tests/qt/test_window.h"

// Requests that reach the whole program in its window.
namespace tarvo {
namespace {

constexpr char name[] = "com.wordhaven.TarvoManager";
constexpr const char* codes[] = {"tMG8", "tQB8", "tTX8", "tGD8", "tTM8", "tNP8", "OfficeAddin", "Mail"};

struct OutsideRequests : testing::Test, test::TestWindow {
  OutsideRequests() {
    qputenv("TARVO_NO_ANIMATION", "1");
    test::usePrivateBus();
    prepare = [this] { shell->listen({name, "/h", "/r"}); };
  }
  ~OutsideRequests() override {
    end();
    EXPECT_TRUE(test::waitForName(name, false));
  }

  static void request(const char* code) {
    QDBusMessage call = QDBusMessage::createMethodCall(name, busObjectPath, applicationInterface, "ActivateAction");
    call << "open-tool" << QVariant(QVariantList{QString(code)}) << QVariantMap();
    QDBusConnection::sessionBus().asyncCall(call);
  }
  std::string tool() {
    const std::string* stored = defaults().string("SMSelectedTag");
    return stored != nullptr ? *stored : std::string();
  }

  std::string styleFile(const char* file) {
    folder.write(std::string("files/") + file, writePropertyList(record()));
    return folder / "files/" + file;
  }
  // The shown style with another option.
  Dictionary record() {
    Dictionary found = *shell->program().rooms().store.getStyleAtIndex(0);
    Dictionary half = *found.dictionary("EJ");
    half.set("Opt1", 2);
    found.set("EJ", std::move(half));
    return found;
  }
  int option() {
    return shell->program().rooms().store.getStyleAtIndex(0)->dictionary("EJ")->find("Opt1")->integerValue();
  }

  static QDialog* question() { return dynamic_cast<AlertDialog*>(QApplication::activeModalWidget()); }
  // Once the question is up: what it says, and a press of the key.
  std::string answered(Qt::Key key) {
    std::string title;
    QTimer::singleShot(50, &window(), [&title, key] {
      if (question() == nullptr) return;
      title = question()->windowTitle().toStdString();
      QTest::keyClick(question(), key);
    });
    settle(150);
    return title;
  }
  void drop(const QList<QUrl>& files) {
    QMimeData data;
    data.setUrls(files);
    const QPoint place = window().rect().center();
    QDragEnterEvent enter(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    enter.ignore();
    QApplication::sendEvent(&window(), &enter);
    isTaken = enter.isAccepted();
    EXPECT_EQ(isMarked(), isTaken);
    if (!isTaken) return;
    QDropEvent dropped(place, Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&window(), &dropped);
    EXPECT_EQ(dropped.dropAction(), Qt::CopyAction);
    EXPECT_FALSE(isMarked());
  }
  bool isMarked() {
    const auto* mark = window().findChild<QWidget*>("dropMark");
    return mark != nullptr && mark->isVisible();
  }
  static QUrl url(const std::string& path) { return QUrl::fromLocalFile(QString::fromStdString(path)); }
  bool isTaken = false;
};

TEST_F(OutsideRequests, eachToolIsShownForItsCode) {
  start();
  for (std::size_t i = 0; i < std::size(codes); ++i) {
    request(codes[i]);
    settle(150);
    EXPECT_EQ(tool(), siblingTools[i].key);
    EXPECT_EQ(inStep(), "");
  }
}

TEST_F(OutsideRequests, aThousandAreCarriedOutInTheirOrder) {
  start();
  std::string expected, shown;
  shell->program().notifications().addObserver(&expected, "ChangeToolbar",
                                               [&](const Notification&) { shown += tool() + " "; });
  constexpr int together = 50;  // fewer than may wait
  for (int i = 0; i < 1000; ++i) {
    const std::size_t which = static_cast<std::size_t>(i * i + i / 8) % std::size(codes);
    request(codes[which]);
    expected += std::string(siblingTools[which].key) + " ";
    const bool isLast = i % together == together - 1;
    for (int rounds = 0; isLast && rounds < 5000 && shown.size() < expected.size(); ++rounds) settle();
  }
  shell->program().notifications().removeObserver(&expected);
  EXPECT_EQ(shown, expected);
}

TEST_F(OutsideRequests, areCarriedOutBehindAModalWindow) {
  start();
  QTimer::singleShot(50, &window(), [this] {
    request("tGD8");
    settle(150);
    EXPECT_EQ(tool(), "GD");
    QApplication::activeModalWidget()->close();
  });
  widget<QPushButton>("style.ejLoadDicButton").click();
}

TEST_F(OutsideRequests, bringAMinimizedWindowBack) {
  start();
  window().showMinimized();
  settle();
  request("tQB8");
  settle(150);
  EXPECT_FALSE(window().isMinimized());
}

TEST_F(OutsideRequests, aStyleFileReplacesTheShownStyleAfterAQuestion) {
  start();
  const std::string path = styleFile("日本 1.WHStyle");
  const int before = option();
  ASSERT_NE(before, 2);
  const std::string title = "Replace the style “" + interface().style.stylePopup.titleOfSelectedItem() + "”?";
  for (const Qt::Key cancels : {Qt::Key_Return, Qt::Key_Escape}) {
    shell->openFiles({path});
    EXPECT_EQ(answered(cancels), title);
    EXPECT_EQ(option(), before);
  }
  shell->openFiles({path, path});  // one at a time
  QTimer::singleShot(50, &window(), [] { question()->findChild<QPushButton*>("alert.1")->click(); });
  EXPECT_EQ(answered(Qt::Key_Return), "");
  EXPECT_EQ(option(), 2);
}

TEST_F(OutsideRequests, onlyStyleFilesAreTakenByTheWindow) {
  start();
  const std::string path = styleFile("日本 1.WHStyle");
  for (const QList<QUrl>& files : {QList<QUrl>{}, {url("/tmp/a.plist")}, {QUrl("http://example.invalid/a.whstyle")}}) {
    drop(files);
    EXPECT_FALSE(isTaken);
  }
  drop({url("/tmp/a.plist"), url(path)});
  EXPECT_TRUE(isTaken);
  QTimer::singleShot(50, &window(), [] { question()->findChild<QPushButton*>("alert.1")->click(); });
  settle(150);
  EXPECT_EQ(option(), 2);
  EXPECT_EQ(inStep(), "");
}

TEST_F(OutsideRequests, theMarkOfADropGoesWithThePointer) {
  start();
  QMimeData data;
  data.setUrls({url("/tmp/a.whstyle")});
  QDragEnterEvent enter(window().rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
  QApplication::sendEvent(&window(), &enter);
  EXPECT_TRUE(isMarked());
  QDragLeaveEvent leave;
  QApplication::sendEvent(&window(), &leave);
  EXPECT_FALSE(isMarked());
}

TEST_F(OutsideRequests, nothingIsTakenUnderASheet) {
  start();
  const std::string path = styleFile("a.whstyle");
  interface().style.stylePopup.userChoose(1);
  widget<QPushButton>("style.StyleNameEditButton").click();
  settle();
  QMimeData data;
  data.setUrls({url(path)});
  QDragEnterEvent enter(window().rect().center(), Qt::CopyAction, &data, Qt::LeftButton, {});
  enter.ignore();
  QApplication::sendEvent(window().windowHandle(), &enter);
  EXPECT_FALSE(enter.isAccepted());
}

}  // namespace
}  // namespace tarvo
