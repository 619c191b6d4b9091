// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/main_window.h"

#include <QAccessibleWidget>
#include <QBoxLayout>
#include <QDropEvent>
#include <QEvent>
#include <QMenuBar>
#include <QMimeData>
#include <QPainter>
#include <QStackedWidget>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <algorithm>
#include <utility>

#include "app/interface.h"
#include "app/panes.h"
#include "qt/bind/control_view.h"
#include "qt/look/metrics.h"
#include "qt/look/plate.h"
#include "qt/window/frame_animation.h"
#include "qt/window/notice_line.h"
#include "qt/window/toolbar_view.h"

namespace tarvo {

namespace {

std::vector<std::string> styleFilesIn(const QMimeData& data) {
  std::vector<std::string> paths;
  for (const QUrl& address : data.urls()) {
    const QString path = address.toLocalFile();
    if (path.endsWith(QLatin1String(".whstyle"), Qt::CaseInsensitive)) paths.push_back(path.toStdString());
  }
  return paths;
}

// The frame of the place that takes what is dragged over it.
class DropMark : public QWidget {
 public:
  explicit DropMark(QWidget* parent) : QWidget(parent) {
    setObjectName(QStringLiteral("dropMark"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    const QRect frame = rect().marginsRemoved(QMargins(metrics::grid, metrics::grid, metrics::grid, metrics::grid));
    drawFocusRing(painter, frame, metrics::cardRadius, palette());
  }
};

// Assistive tools look for the active window by its role, which a plain widget does not have.
QAccessibleInterface* windowForAssistiveTools(const QString&, QObject* object) {
  auto* window = dynamic_cast<MainWindow*>(object);
  return window == nullptr ? nullptr : new QAccessibleWidget(window, QAccessible::Window);
}

}  // namespace

MainWindow::MainWindow(Interface& interface, Binder& binder, std::vector<PageBuilder> panes)
    : interface_(interface),
      binder_(binder),
      builders_(std::move(panes)),
      actions_(interface, binder, *this),
      menuBar_(buildMenuBar(actions_, interface, binder, this)),
      toolbar_(new ToolbarView(actions_, interface, binder, this)),
      paneArea_(new QWidget(this)),
      animation_(new FrameAnimation(*this, [this](bool moving) {
        // An empty pane while the window moves: laying it out at each step would look restless.
        if (panes_ == nullptr) return;
        if (moving && panes_->isVisible()) hadKeyboard_ = panes_->isAncestorOf(focusWidget());
        fitPane();
        panes_->setVisible(!moving);
        if (!moving && std::exchange(hadKeyboard_, false)) giveKeyboardToPane();
      })) {
  QAccessible::installFactory(windowForAssistiveTools);
  binder.window(interface.manager.myWindow, *this);
  setAcceptDrops(true);
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->setMenuBar(menuBar_);
  rows->addWidget(toolbar_);
  rows->addWidget(paneArea_, 1);
  rows->addWidget(new NoticeLine(interface.notices, binder, this));
  paneArea_->installEventFilter(this);
  // The items change theirs in the same round of events.
  connect(toolbar_, &QToolBar::toolButtonStyleChanged, this, [this] {
    QTimer::singleShot(0, this, [this] {
      if (toolbarChangedHeight) toolbarChangedHeight();
    });
  });
}

int MainWindow::menuHeight() const { return menuBar_->sizeHint().height(); }

int MainWindow::toolbarHeight() const { return toolbar_->shownHeight(); }

void MainWindow::buildPanes() {
  if (panes_ != nullptr) return;
  panes_ = binder_.pages(interface_.manager.myTabView, std::move(builders_), paneArea_);
  fitPane();
}

// Else the line of notices would get it, which was built before the buttons.
void MainWindow::beginKeyboard() {
  if (isHiddenItself(*toolbar_)) return giveKeyboardToPane();
  for (QToolButton* button : toolbar_->findChildren<QToolButton*>()) {
    if ((button->focusPolicy() & Qt::TabFocus) == 0) continue;
    button->setFocus(Qt::ActiveWindowFocusReason);
    return;
  }
}

QSize MainWindow::minimumOfPane(Pane pane) {
  buildPanes();
  const QWidget* page = panes_->widget(tagOf(pane));
  if (page == nullptr) return {};
  QSize least = page->minimumSizeHint();
  // Sentences take more lines in larger letters.
  const int width = std::max(least.width(), static_cast<int>(rowOf(pane).size.width));
  const QLayout* layout = page->layout();
  if (layout != nullptr && layout->hasHeightForWidth()) {
    least.setHeight(std::max(least.height(), layout->minimumHeightForWidth(width)));
  }
  return least;
}

void MainWindow::resizeTo(QSize client, bool animate) { animation_->resizeTo(client, animate); }

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == paneArea_ && event->type() == QEvent::Resize && panes_ != nullptr && !isHiddenItself(*panes_))
    fitPane();
  return QWidget::eventFilter(watched, event);
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (styleFilesIn(*event->mimeData()).empty()) return;
  event->setDropAction(Qt::CopyAction);  // the file stays where it is
  event->accept();
  if (dropMark_ == nullptr) dropMark_ = new DropMark(this);
  dropMark_->setGeometry(paneArea_->geometry());
  dropMark_->raise();
  dropMark_->show();
}

void MainWindow::dragLeaveEvent(QDragLeaveEvent* event) {
  if (dropMark_ != nullptr) dropMark_->hide();
  QWidget::dragLeaveEvent(event);
}

void MainWindow::dropEvent(QDropEvent* event) {
  if (dropMark_ != nullptr) dropMark_->hide();
  std::vector<std::string> paths = styleFilesIn(*event->mimeData());
  if (paths.empty()) return;
  event->setDropAction(Qt::CopyAction);
  event->accept();
  if (styleFilesDropped) styleFilesDropped(std::move(paths));
}

void MainWindow::giveKeyboardToPane() {
  QWidget* page = panes_->currentWidget();
  QWidget* first = page->focusWidget() != nullptr ? page->focusWidget() : page->nextInFocusChain();
  while (page->isAncestorOf(first) && ((first->focusPolicy() & Qt::TabFocus) == 0 || !first->isEnabled())) {
    first = first->nextInFocusChain();
  }
  if (page->isAncestorOf(first)) first->setFocus(Qt::OtherFocusReason);
}

void MainWindow::fitPane() { panes_->setGeometry(paneArea_->rect()); }

}  // namespace tarvo
