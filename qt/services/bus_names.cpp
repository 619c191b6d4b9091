// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/bus_names.h"

#include <QByteArray>
#include <QFileInfo>

namespace tarvo {
namespace {
constexpr char scheme[] = "file://";
constexpr char thisMachine[] = "localhost";
}  // namespace

bool hasSessionBus() {
  if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) return true;
  const QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !folder.isEmpty() && QFileInfo::exists(folder + QStringLiteral("/bus"));
}

QString fileAddress(const std::string& path) {
  return QString::fromLatin1(scheme + QByteArray::fromStdString(path).toPercentEncoding("/"));
}

std::optional<std::string> pathOfAddress(const QString& address) {
  QByteArray path = address.toUtf8();
  if (path.startsWith('/')) return path.toStdString();
  if (!path.startsWith(scheme)) return std::nullopt;
  path.remove(0, sizeof scheme - 1);
  if (path.startsWith(thisMachine)) path.remove(0, sizeof thisMachine - 1);
  if (!path.startsWith('/')) return std::nullopt;
  return QByteArray::fromPercentEncoding(path).toStdString();
}

}  // namespace tarvo
