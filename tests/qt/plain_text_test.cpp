// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>
#include <QTextDocument>

#include "qt/window/alert_dialog.h"
#include "tests/qt/bind_fixture.h"
#include "tests/qt/main_window_fixture.h"

// Names come from files and from other machines: none of them is markup.
namespace tarvo::test {
namespace {

constexpr const char* name = "<b>x</b>";

// What a reader sees of a tool tip.
QString readToolTip(const QString& toolTip) {
  if (!Qt::mightBeRichText(toolTip)) return toolTip;
  QTextDocument document;
  document.setHtml(toolTip);
  return document.toPlainText();
}

TEST_F(Bind, aNameThatLooksLikeMarkupIsShownAsItStands) {
  QLabel& label = shown(binder.text(outlets.text, &window));
  outlets.text.setStringValue(name);
  EXPECT_EQ(label.textFormat(), Qt::PlainText);
  EXPECT_EQ(label.text(), name);
  outlets.button.setToolTip(name);
  EXPECT_EQ(readToolTip(shown(binder.button(outlets.button, &window)).toolTip()), name);
  outlets.segments.setSegments({{"", name}});
  segments();
  EXPECT_EQ(readToolTip(window.findChild<QWidget*>("test.segments.0")->toolTip()), name);
  outlets.button.setToolTip("plain & simple");
  EXPECT_EQ(window.findChild<QWidget*>("test.button")->toolTip(), "plain & simple");
}

TEST_F(MainWindowTest, noLabelOfItIsMarkup) {
  start();
  ASSERT_TRUE(started);
  const auto labels = window().findChildren<QLabel*>();
  EXPECT_GE(labels.size(), 4);
  for (QLabel* label : labels) {
    label->ensurePolished();
    EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->text().toStdString();
  }
}

TEST(PlainText, noLabelOfAnAlertIsMarkup) {
  AlertDialog dialog({.title = name, .message = name, .buttons = {"Close"}}, "", nullptr);
  for (const QLabel* label : dialog.findChildren<QLabel*>()) EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

}  // namespace
}  // namespace tarvo::test
