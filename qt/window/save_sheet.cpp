// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/window/save_sheet.h"

#include <QDir>
#include <QLineEdit>

#include "platform/text/text_rules.h"
#include "qt/bind/binder.h"
#include "qt/window/file_panel.h"

namespace tarvo {
namespace {}  // namespace

QString nameFilter(const std::vector<std::string>& types) {
  QStringList shown, patterns;
  for (const std::string& type : types) {
    QString pattern = QStringLiteral("*.");
    shown << pattern + toQString(type);
    for (const QChar letter : toQString(type)) {
      pattern +=
          letter.isLetter() ? QStringLiteral("[%1%2]").arg(letter.toLower()).arg(letter.toUpper()) : QString(letter);
    }
    patterns << pattern;
  }
  if (patterns.isEmpty()) return {};
  return QStringLiteral("%1 (%2)").arg(shown.join(QLatin1Char(' ')), patterns.join(QLatin1Char(' ')));
}

SaveSheet::SaveSheet(const SavePanel& panel, QWidget* parent)
    : QFileDialog(parent, toQString(panel.title), toQString(panel.folder.text())), type_(panel.requiredType) {
  setObjectName(QStringLiteral("savePanel"));
  setOption(DontUseNativeDialog);  // which would be a window of its own
  arrangeFilePanel(*this);
  setSizeGripEnabled(false);
  setAcceptMode(AcceptSave);
  setFileMode(AnyFile);
  if (!panel.requiredType.empty()) setNameFilter(nameFilter({panel.requiredType}));
  selectFile(toQString(withPathExtension(panel.name, type_)));
}

DiskPath SaveSheet::path() const {
  const QStringList files = selectedFiles();
  return DiskPath(files.isEmpty() ? std::string() : files.first().toStdString());
}

// A folder's name leads into the folder.
void SaveSheet::accept() {
  auto* name = findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
  if (name != nullptr && !name->text().isEmpty() && !QDir(directory().absoluteFilePath(name->text())).exists()) {
    name->setText(toQString(withPathExtension(name->text().toStdString(), type_)));
  }
  QFileDialog::accept();
}

}  // namespace tarvo
