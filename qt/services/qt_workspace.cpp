// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/qt_workspace.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>
#include <utility>

#include "platform/services/application_program.h"
#include "platform/services/locations.h"
#include "platform/services/product_paths.h"

namespace tarvo {

QtWorkspace::QtWorkspace(Services services, std::function<std::vector<std::string>()> running)
    : services_(services), running_(std::move(running)) {}

void QtWorkspace::openFile(const std::string& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(services_.locations.resolve(path))));
}

void QtWorkspace::openAddress(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

void QtWorkspace::launchApplication(const std::string& name) {
  const auto program = applicationProgram(services_.files, services_.paths.applicationFolders(), name);
  if (program) QProcess::startDetached(QString::fromStdString(services_.locations.resolve(*program)), {});
}

std::vector<std::string> QtWorkspace::launchedApplications() {
  std::vector<std::string> all = running_();
  for (std::string& counted : services_.paths.runningApplications()) all.push_back(std::move(counted));
  return all;
}

}  // namespace tarvo
