// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/qt_workspace.h"

#include <QDesktopServices>
#include <QDir>
#include <QProcess>
#include <QUrl>
#include <utility>

#include "platform/locations.h"

namespace tarvo {

namespace {
// Where applications are looked for by their names.
constexpr const char* applicationFolders[] = {"/Applications", "/Applications/Utilities", "/Applications/AppleScript"};
}  // namespace

QtWorkspace::QtWorkspace(const Locations& locations, std::function<std::vector<std::string>()> running)
    : locations_(locations), running_(std::move(running)) {}

void QtWorkspace::openFile(const std::string& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(locations_.resolve(path))));
}

void QtWorkspace::openAddress(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

void QtWorkspace::launchApplication(const std::string& name) {
  for (const char* folder : applicationFolders) {
    const QDir programs(QString::fromStdString(locations_.resolve(folder + ("/" + name)) + "/Contents/MacOS"));
    const QStringList found = programs.entryList(QDir::Files | QDir::Executable, QDir::Name);
    if (found.isEmpty()) continue;
    QProcess::startDetached(programs.filePath(found.first()), {});
    return;
  }
}

}  // namespace tarvo
