// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractListModel>

namespace tarvo {

class Binder;
class PopUpButton;

// A pop-up's items as a model, without a copy of them. Dividers are lines that neither mouse nor keyboard can choose.
class PopUpModel : public QAbstractListModel {
 public:
  PopUpModel(const PopUpButton& control, Binder& binder, QObject* parent)
      : QAbstractListModel(parent), control_(control), binder_(binder) {}
  void itemsChanged();
  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  const PopUpButton& control_;
  Binder& binder_;
};

}  // namespace tarvo
