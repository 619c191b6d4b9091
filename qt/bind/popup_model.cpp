// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/bind/popup_model.h"

#include "platform/controls/controls.h"
#include "qt/bind/binder.h"

namespace tarvo {

void PopUpModel::itemsChanged() {
  beginResetModel();
  endResetModel();
}

int PopUpModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(control_.items().size());
}

QVariant PopUpModel::data(const QModelIndex& index, int role) const {
  if (index.row() < 0 || index.row() >= rowCount()) return {};
  const PopUpButton::Item& item = control_.items()[static_cast<std::size_t>(index.row())];
  if (role == Qt::DisplayRole) return toQString(item.title);
  if (role == Qt::DecorationRole) return item.image.empty() ? QVariant() : QVariant(binder_.icon(item.image));
  // The word by which the toolkit's pop-ups and their drawings know a divider.
  if (role == Qt::AccessibleDescriptionRole && item.separator) return QStringLiteral("separator");
  return {};
}

Qt::ItemFlags PopUpModel::flags(const QModelIndex& index) const {
  if (index.row() < 0 || index.row() >= rowCount()) return Qt::NoItemFlags;
  const bool isDivider = control_.items()[static_cast<std::size_t>(index.row())].separator;
  return isDivider ? Qt::NoItemFlags : Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

}  // namespace tarvo
