// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/qt_workspace.h"

#include <QDesktopServices>
#include <QProcess>
#include <QUrl>
#include <utility>

#include "platform/services/application_program.h"
#include "platform/services/product_paths.h"

namespace tarvo {

QtWorkspace::QtWorkspace(Services services, std::function<std::vector<ProductPath>()> running)
    : services_(services), running_(std::move(running)) {}

void QtWorkspace::openFile(const DiskPath& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path.text())));
}

void QtWorkspace::openAddress(const std::string& address) {
  QDesktopServices::openUrl(QUrl(QString::fromStdString(address)));
}

void QtWorkspace::launchApplication(const std::string& name) {
  const auto program = applicationProgram(services_.files, services_.paths.applicationFolders(), name);
  if (program) QProcess::startDetached(QString::fromStdString(program->text()), {});
}

std::vector<ProductPath> QtWorkspace::launchedApplications() {
  std::vector<ProductPath> all = running_();
  for (ProductPath& counted : services_.paths.runningApplications()) all.push_back(std::move(counted));
  return all;
}

}  // namespace tarvo
