// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/qt_panels.h"

#include <QApplication>
#include <QFileDialog>
#include <utility>

#include "qt/bind/binder.h"
#include "qt/window/alert_dialog.h"
#include "qt/window/file_panel.h"
#include "qt/window/save_sheet.h"
#include "qt/window/sheet.h"

namespace tarvo {
namespace {

std::string chosenPath(const QFileDialog& dialog) {
  const QStringList files = dialog.selectedFiles();
  return files.isEmpty() ? std::string() : files.first().toStdString();
}

}  // namespace

QtPanels::QtPanels(Surroundings surroundings) : surroundings_(std::move(surroundings)) {}

void QtPanels::beep() { QApplication::beep(); }

int QtPanels::runAlertPanel(const Alert& alert) {
  AlertDialog dialog(alert, QApplication::activeWindow());
  return dialog.exec();
}

void QtPanels::beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> ended) {
  QWidget* below = surroundings_.host(&host);
  auto* dialog = new AlertDialog(alert, below);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialog, &QDialog::finished, dialog, [ended = std::move(ended)](int button) { ended(button); });
  below != nullptr ? openSheet(*dialog, *below, surroundings_.sheetTop(&host)) : dialog->open();
}

std::optional<std::string> QtPanels::runOpenPanel(const OpenPanel& panel) {
  QFileDialog dialog(QApplication::activeWindow(), toQString(panel.title));
  dialog.setFileMode(panel.foldersOnly ? QFileDialog::Directory : QFileDialog::ExistingFile);
  if (panel.foldersOnly) dialog.setOption(QFileDialog::ShowDirsOnly);
  arrangeFilePanel(dialog);
  if (const QString filter = nameFilter(panel.types); !filter.isEmpty()) dialog.setNameFilter(filter);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return chosenPath(dialog);
}

void QtPanels::beginSavePanel(Window& host, const SavePanel& panel,
                              std::function<void(int code, const std::string& path)> ended) {
  QWidget* below = surroundings_.host(&host);
  SavePanel real = panel;
  real.folder = surroundings_.realPath(panel.folder);
  auto* dialog = new SaveSheet(real, below);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialog, &QDialog::finished, dialog, [dialog, ended = std::move(ended)](int code) {
    ended(code == QDialog::Accepted ? 1 : 0, code == QDialog::Accepted ? dialog->path() : std::string());
  });
  below != nullptr ? openSheet(*dialog, *below, surroundings_.sheetTop(&host)) : dialog->open();
}

}  // namespace tarvo
