// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/qt_workspace.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>
#include <utility>

#include "platform/locations.h"

namespace tarvo {

QtWorkspace::QtWorkspace(const Locations& locations, std::function<std::vector<std::string>()> running)
    : locations_(locations), running_(std::move(running)) {}

void QtWorkspace::openFile(const std::string& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(locations_.resolve(path))));
}

void QtWorkspace::openAddress(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

void QtWorkspace::launchApplication(const std::string& name) {
  QProcess::startDetached(QString::fromStdString(name), {});
}

}  // namespace tarvo
