// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QStyledItemDelegate>

namespace tarvo {

// Draws the cells of a list's column of icons and names.
// Duty: icon and text at the places that the core gives for them, centred in the height of the row. Not: the plate of a
// chosen row, which the style draws.
class IconedDelegate : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

// The places of a cell's icon and text.
struct IconedPlaces {
  QRect icon, text;
};
IconedPlaces iconedPlaces(const QRect& cell, bool hasIcon);

}  // namespace tarvo
