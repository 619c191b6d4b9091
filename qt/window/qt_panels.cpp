// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/qt_panels.h"

#include <QApplication>
#include <QFileDialog>
#include <iostream>
#include <utility>

#include "platform/text/printable.h"
#include "qt/bind/binder.h"
#include "qt/window/alert_dialog.h"
#include "qt/window/file_panel.h"
#include "qt/window/save_sheet.h"

namespace tarvo {
namespace {

DiskPath chosenPath(const QFileDialog& dialog) {
  const QStringList files = dialog.selectedFiles();
  return DiskPath(files.isEmpty() ? std::string() : files.first().toStdString());
}

}  // namespace

QtPanels::QtPanels(Surroundings surroundings) : surroundings_(std::move(surroundings)) {}

void QtPanels::beep() { QApplication::beep(); }

void QtPanels::tell(const std::string& text) { std::cerr << "tarvo-manager: " << printable(text) << '\n'; }

int QtPanels::runAlertPanel(const Alert& alert) {
  AlertDialog dialog(alert, surroundings_.detailsTitle, QApplication::activeWindow());
  return dialog.exec();
}

void QtPanels::beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> ended) {
  auto* dialog = new AlertDialog(alert, surroundings_.detailsTitle, surroundings_.host(host));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialog, &QDialog::finished, dialog, [ended = std::move(ended)](int button) { ended(button); });
  surroundings_.hang(*dialog, host);
}

std::optional<DiskPath> QtPanels::runOpenPanel(const OpenPanel& panel) {
  QFileDialog dialog(QApplication::activeWindow(), toQString(panel.title));
  dialog.setFileMode(panel.foldersOnly ? QFileDialog::Directory : QFileDialog::ExistingFile);
  if (panel.foldersOnly) dialog.setOption(QFileDialog::ShowDirsOnly);
  arrangeFilePanel(dialog);
  if (const QString filter = nameFilter(panel.types); !filter.isEmpty()) dialog.setNameFilter(filter);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return chosenPath(dialog);
}

void QtPanels::beginSavePanel(Window& host, const SavePanel& panel,
                              std::function<void(int code, const DiskPath& path)> ended) {
  auto* dialog = new SaveSheet(panel, surroundings_.host(host));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialog, &QDialog::finished, dialog, [dialog, ended = std::move(ended)](int code) {
    ended(code == QDialog::Accepted ? 1 : 0, code == QDialog::Accepted ? dialog->path() : DiskPath());
  });
  surroundings_.hang(*dialog, host);
}

}  // namespace tarvo
