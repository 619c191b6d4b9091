// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/notice_line.h"

#include <QAccessibleWidget>
#include <QBoxLayout>
#include <QEvent>
#include <QHeaderView>
#include <QHelpEvent>
#include <QPainter>
#include <QPushButton>
#include <QTableView>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "app/history/notice_board.h"
#include "qt/bind/binder.h"
#include "qt/bind/control_view.h"
#include "qt/look/metrics.h"

namespace tarvo {

namespace {

constexpr int mostRows = 8;  // of one line each that are seen at once in the list

// Its name is what it says.
class NotificationForAssistiveTools : public QAccessibleWidget {
 public:
  explicit NotificationForAssistiveTools(ElidedText& text)
      : QAccessibleWidget(&text, QAccessible::Notification), text_(text) {}
  QString text(QAccessible::Text kind) const override {
    if (kind == QAccessible::Name) return text_.text();
    return kind == QAccessible::Description ? text_.accessibleName() : QAccessibleWidget::text(kind);
  }

 private:
  ElidedText& text_;
};

QAccessibleInterface* textForAssistiveTools(const QString&, QObject* object) {
  auto* text = dynamic_cast<ElidedText*>(object);
  return text == nullptr ? nullptr : new NotificationForAssistiveTools(*text);
}

}  // namespace

ElidedText::ElidedText(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void ElidedText::announce() {
  if (!isVisible() || announced_ == text()) return;
  announced_ = text();
  // Screen readers read a notification out when it comes up, and keep its name until they hear of another.
  for (const QAccessible::Event type : {QAccessible::NameChanged, QAccessible::ObjectShow}) {
    QAccessibleEvent event(this, type);
    QAccessible::updateAccessibility(&event);
  }
}

QSize ElidedText::minimumSizeHint() const { return {0, fontMetrics().height()}; }

bool ElidedText::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QLabel::event(event);
  // As a paragraph it wraps, and a path is no markup.
  const QPoint at = static_cast<QHelpEvent*>(event)->globalPos();
  QToolTip::showText(at, text().isEmpty() ? QString() : QStringLiteral("<p>%1</p>").arg(text().toHtmlEscaped()), this);
  return true;
}

void ElidedText::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(contentsRect(), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeft) | Qt::TextSingleLine, shown);
}

NoticeLine::NoticeLine(NoticeOutlets& outlets, Binder& binder, QWidget* surroundings)
    : QFrame(surroundings), list_(binder.table(outlets.noticeTable, surroundings)) {
  QAccessible::installFactory(textForAssistiveTools);
  setObjectName(QStringLiteral("noticeLine"));
  setBackgroundRole(QPalette::Midlight);
  setAutoFillBackground(true);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(metrics::paneMargin, metrics::grid, metrics::paneMargin, metrics::grid);
  row->setSpacing(metrics::rowGap);
  auto* text = new ElidedText(this);
  binder.text(outlets.noticeText, *text);
  outlets.noticeText.view = [text, show = std::move(outlets.noticeText.view)](Control::Change change) {
    show(change);
    text->announce();
  };
  row->addWidget(text, 1);
  row->addStretch();  // the buttons keep their place while no text is shown
  for (Button* button : {&outlets.noticeButton, &outlets.noticeListButton}) {
    QPushButton* shown = binder.button(*button, this);
    row->addWidget(shown);
    shown->installEventFilter(this);
  }
  list_->setWordWrap(true);
  list_->setTextElideMode(Qt::ElideRight);
  list_->verticalHeader()->setMinimumSectionSize(metrics::rowHeight(list_->fontMetrics()));
  list_->installEventFilter(this);
  surroundings->installEventFilter(this);
  setVisible(!outlets.noticeListButton.isHidden());
}

// The line is there while one of its buttons is; the list lies right above it.
bool NoticeLine::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::ShowToParent || type == QEvent::HideToParent) {
    const auto buttons = findChildren<QPushButton*>();
    const bool isTelling = std::any_of(buttons.begin(), buttons.end(), [](auto* one) { return !isHiddenItself(*one); });
    if (isTelling == isHiddenItself(*this)) setVisible(isTelling);
    if (watched == list_) list_->raise();
  }
  if (type == QEvent::Resize || type == QEvent::Show || type == QEvent::LayoutRequest) placeList();
  return QFrame::eventFilter(watched, event);
}

// As high as its rows, which wrap at its width.
void NoticeLine::placeList() {
  const int row = metrics::rowHeight(list_->fontMetrics());
  list_->resize(width() - 2 * metrics::grid, list_->height());
  list_->resizeRowsToContents();
  const int rows = std::clamp(list_->verticalHeader()->length(), row, mostRows * row);
  const int height = std::min(y(), rows + 2 * metrics::listPadding);
  list_->setGeometry(metrics::grid, y() - height, list_->width(), height);
}

}  // namespace tarvo
