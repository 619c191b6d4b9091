// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/qt_panels.h"

#include <QApplication>
#include <QFileDialog>
#include <utility>

#include "qt/bind/binder.h"
#include "qt/window/alert_dialog.h"
#include "qt/window/sheet.h"

namespace tarvo {
namespace {

// "*.whstyle" in any case of letters; all files for an empty list.
QString nameFilter(const std::vector<std::string>& types) {
  QStringList patterns;
  for (const std::string& type : types) {
    QString pattern = QStringLiteral("*.");
    for (const QChar letter : toQString(type)) {
      pattern +=
          letter.isLetter() ? QStringLiteral("[%1%2]").arg(letter.toLower()).arg(letter.toUpper()) : QString(letter);
    }
    patterns << pattern;
  }
  return patterns.isEmpty() ? QString() : QStringLiteral("(%1)").arg(patterns.join(QLatin1Char(' ')));
}

std::string chosenPath(const QFileDialog& dialog) {
  const QStringList files = dialog.selectedFiles();
  return files.isEmpty() ? std::string() : files.first().toStdString();
}

}  // namespace

QtPanels::QtPanels(std::function<QWidget*(Window*)> host, std::function<int()> sheetTop)
    : host_(std::move(host)), sheetTop_(std::move(sheetTop)) {}

void QtPanels::beep() { QApplication::beep(); }

int QtPanels::runAlertPanel(const Alert& alert) {
  AlertDialog dialog(alert, QApplication::activeWindow());
  return dialog.exec();
}

void QtPanels::beginAlertSheet(Window& host, const Alert& alert, std::function<void(int button)> ended) {
  QWidget* below = host_(&host);
  auto* dialog = new AlertDialog(alert, below);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  QObject::connect(dialog, &QDialog::finished, dialog, [ended = std::move(ended)](int button) { ended(button); });
  below != nullptr ? openSheet(*dialog, *below, sheetTop_()) : dialog->open();
}

std::optional<std::string> QtPanels::runOpenPanel(const OpenPanel& panel) {
  QFileDialog dialog(QApplication::activeWindow(), toQString(panel.title));
  dialog.setFileMode(panel.foldersOnly ? QFileDialog::Directory : QFileDialog::ExistingFile);
  if (panel.foldersOnly) dialog.setOption(QFileDialog::ShowDirsOnly);
  if (const QString filter = nameFilter(panel.types); !filter.isEmpty()) dialog.setNameFilter(filter);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return chosenPath(dialog);
}

void QtPanels::beginSavePanel(Window& host, const SavePanel& panel,
                              std::function<void(int code, const std::string& path)> ended) {
  auto* dialog = new QFileDialog(host_(&host), toQString(panel.title), toQString(panel.folder));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setAcceptMode(QFileDialog::AcceptSave);
  dialog->setDefaultSuffix(toQString(panel.requiredType));
  dialog->selectFile(toQString(panel.name));
  QObject::connect(dialog, &QDialog::finished, dialog, [dialog, ended = std::move(ended)](int code) {
    ended(code == QDialog::Accepted ? 1 : 0, code == QDialog::Accepted ? chosenPath(*dialog) : std::string());
  });
  dialog->open();
}

}  // namespace tarvo
