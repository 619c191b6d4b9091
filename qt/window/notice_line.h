// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QFrame>
#include <QLabel>

class QTableView;

namespace tarvo {

class Binder;
struct NoticeOutlets;

// A text in one line, elided at its end where the line is too short. The whole text is its tool tip and what assistive
// tools read, which hear of it as of a notification.
class ElidedText : public QLabel {
 public:
  explicit ElidedText(QWidget* parent);
  QSize minimumSizeHint() const override;
  void announce();  // tells assistive tools of a text that is seen and that they do not know yet

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString announced_;
};

// The line at the foot of the main window: what happened last, what can be done about it, and a button that opens the
// list of the latest notices above it. It is hidden while there was nothing to tell, never widens the window and
// never takes the keyboard. Not: deciding what is told.
class NoticeLine : public QFrame {
 public:
  // The list covers the lower part of the surroundings, which the line stands in.
  NoticeLine(NoticeOutlets& outlets, Binder& binder, QWidget* surroundings);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void placeList();
  QTableView* list_;
};

}  // namespace tarvo
