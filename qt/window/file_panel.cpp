// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/file_panel.h"

#include <QFileDialog>
#include <QHeaderView>
#include <QSplitter>
#include <QTreeView>

namespace tarvo {
namespace {

constexpr int placesWidth = 9, leastWidth = 38, leastHeight = 25;  // in heights of a line
enum Column { name, size, type, date };

}  // namespace

void arrangeFilePanel(QFileDialog& panel) {
  const int line = panel.fontMetrics().height();
  panel.setOption(QFileDialog::HideNameFilterDetails);
  panel.setMinimumSize(leastWidth * line, leastHeight * line);
  if (auto* parts = panel.findChild<QSplitter*>(QStringLiteral("splitter"))) {
    parts->setSizes({placesWidth * line, (leastWidth - placesWidth) * line});
  }
  for (const char* part : {"fileTypeLabel", "fileTypeCombo"}) {
    auto* widget = panel.findChild<QWidget*>(QLatin1String(part));
    if (widget != nullptr && panel.fileMode() == QFileDialog::Directory) widget->hide();
  }
  auto* files = panel.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (files == nullptr) return;  // the panel is the desktop's own
  QHeaderView& header = *files->header();
  header.hideSection(type);
  header.setStretchLastSection(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(name, QHeaderView::Stretch);
}

}  // namespace tarvo
