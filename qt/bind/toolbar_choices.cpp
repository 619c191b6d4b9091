// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/toolbar_choices.h"

#include <QAction>
#include <QComboBox>
#include <QListWidget>
#include <QPushButton>
#include <algorithm>

#include "qt/bind/binder.h"
#include "qt/look/metrics.h"

namespace tarvo {
namespace {

constexpr int identifierRole = Qt::UserRole;

class OrderList : public QObject {
 public:
  OrderList(Toolbar& toolbar, Binder& binder, QListWidget& list)
      : QObject(&list), toolbar_(toolbar), binder_(binder), list_(list) {
    fill();
    connect(&list, &QListWidget::itemChanged, this, [this] { send(); });
  }

  void move(int step) {
    const int from = list_.currentRow(), to = from + step;
    if (from < 0 || to < 0 || to >= list_.count()) return;
    list_.insertItem(to, list_.takeItem(from));
    list_.setCurrentRow(to);
    send();
  }

  void reset() {
    toolbar_.userOrder({});
    fill();
  }

 private:
  // Shown items in their order, then the others.
  void fill() {
    const QSignalBlocker quiet(list_);
    const int row = std::max(0, list_.currentRow());
    list_.clear();
    for (const std::string& identifier : toolbar_.order()) add(identifier, true);
    for (const Toolbar::Item& item : toolbar_.allowedItems()) {
      const auto& order = toolbar_.order();
      if (std::find(order.begin(), order.end(), item.identifier) == order.end()) add(item.identifier, false);
    }
    list_.setCurrentRow(row);
  }

  void add(const std::string& identifier, bool isShown) {
    const Button& button = *toolbar_.item(identifier);
    auto* item = new QListWidgetItem(binder_.icon(button.image()), toQString(button.label()), &list_);
    item->setSizeHint({0, metrics::rowHeight(list_.fontMetrics())});
    item->setData(identifierRole, toQString(identifier));
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    item->setCheckState(isShown ? Qt::Checked : Qt::Unchecked);
  }

  void send() {
    std::vector<std::string> order;
    for (int row = 0; row < list_.count(); ++row) {
      const QListWidgetItem& item = *list_.item(row);
      if (item.checkState() == Qt::Checked) order.push_back(item.data(identifierRole).toString().toStdString());
    }
    // An empty order would bring all items back.
    if (!order.empty()) return toolbar_.userOrder(std::move(order));
    fill();
  }

  Toolbar& toolbar_;
  Binder& binder_;
  QListWidget& list_;
};

}  // namespace

void bindToolbarOrder(Toolbar& toolbar, Binder& binder, QListWidget& list, QPushButton& up, QPushButton& down,
                      QPushButton& reset) {
  auto* order = new OrderList(toolbar, binder, list);
  QObject::connect(&up, &QPushButton::clicked, order, [order] { order->move(-1); });
  QObject::connect(&down, &QPushButton::clicked, order, [order] { order->move(1); });
  QObject::connect(&reset, &QPushButton::clicked, order, [order] { order->reset(); });
  const auto enable = [&list, &up, &down] {
    up.setEnabled(list.currentRow() > 0);
    down.setEnabled(list.currentRow() >= 0 && list.currentRow() + 1 < list.count());
  };
  QObject::connect(&list, &QListWidget::currentRowChanged, order, enable);
  enable();
}

void bindToolbarDisplay(Toolbar& toolbar, Binder& binder, QComboBox& modes) {
  for (const char* key : displayModeKeys) modes.addItem(binder.localized(key));
  modes.setCurrentIndex(static_cast<int>(toolbar.displayMode()));
  QObject::connect(&modes, &QComboBox::activated, &modes,
                   [&toolbar](int mode) { toolbar.userDisplay(static_cast<Toolbar::DisplayMode>(mode)); });
}

void bindToolbarDisplay(Toolbar& toolbar, Toolbar::DisplayMode mode, QAction& action) {
  action.setCheckable(true);
  action.setChecked(toolbar.displayMode() == mode);
  QObject::connect(&action, &QAction::triggered, &action, [&toolbar, mode] { toolbar.userDisplay(mode); });
}

}  // namespace tarvo
