// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractTableModel>
#include <QMimeData>
#include <QString>
#include <vector>

#include "platform/controls/table_view.h"

namespace tarvo {

class Binder;

// What a drag of rows carries, within this process only.
class RowsMimeData : public QMimeData {
 public:
  explicit RowsMimeData(Pasteboard rows);
  const Pasteboard& pasteboard() const { return pasteboard_; }

 private:
  Pasteboard pasteboard_;
};

// A table's rows as a model.
// Duty: ask the control at every look, pass on ticks, drags and drops. Not: moving rows, which only the control's
// source does. A reload keeps selection, keyboard position and scrolling: rows come and go at the tail, the rest is
// told as changed.
class TableModel : public QAbstractTableModel {
 public:
  TableModel(TableView& control, Binder& binder, std::vector<QString> headers, QObject* parent);
  void reload();
  void columnsChanged();
  int checkColumn() const;  // -1: none
  bool hasIcons(int column) const;
  void tick(int row);  // turns the row's check box over

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QStringList mimeTypes() const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  Qt::DropActions supportedDropActions() const override { return Qt::MoveAction; }
  bool canDropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                       const QModelIndex& parent) const override;
  bool dropMimeData(const QMimeData* data, Qt::DropAction action, int row, int column,
                    const QModelIndex& parent) override;

 private:
  CellValue cell(const QModelIndex& index) const;
  TableView& control_;
  Binder& binder_;
  std::vector<QString> headers_;
  int rows_ = 0;
};

}  // namespace tarvo
