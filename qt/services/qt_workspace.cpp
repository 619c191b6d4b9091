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

Result<> QtWorkspace::openFile(const DiskPath& path) {
  if (QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(path.text())))) return {};
  return Failure{path.text(), Attempt::open, Reason::noProgram};
}

Result<> QtWorkspace::openAddress(const std::string& address) {
  if (QDesktopServices::openUrl(QUrl(QString::fromStdString(address)))) return {};
  return Failure{address, Attempt::open, Reason::noProgram};
}

Result<> QtWorkspace::launchApplication(const std::string& name) {
  const auto program = applicationProgram(services_.files, services_.paths.applicationFolders(), name);
  if (!program) return Failure{name, Attempt::start, std::make_error_code(std::errc::no_such_file_or_directory)};
  if (QProcess::startDetached(QString::fromStdString(program->text()), {})) return {};
  return Failure{program->text(), Attempt::start, Reason::noProgram};
}

std::vector<ProductPath> QtWorkspace::launchedApplications() {
  std::vector<ProductPath> all = running_();
  for (ProductPath& counted : services_.paths.runningApplications()) all.push_back(std::move(counted));
  return all;
}

}  // namespace tarvo
