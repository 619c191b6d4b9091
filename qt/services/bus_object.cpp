// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/bus_object.h"

#include <QDBusConnection>
#include <QDBusMetaType>
#include <utility>

namespace tarvo {

BusObject::BusObject(BusIdentity identity, BusRequests requests)
    : identity_(std::move(identity)),
      requests_(std::move(requests)),
      connection_(QStringLiteral("manager %1").arg(reinterpret_cast<quintptr>(this))) {
  qDBusRegisterMetaType<QByteArrayList>();
  new ApplicationAdaptor(*this);
  new ManagerAdaptor(*this);
}

BusObject::~BusObject() { QDBusConnection::disconnectFromBus(connection_); }

// The object stands before the name: a call may come with it.
void BusObject::appear() {
  QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connection_);
  bus.registerObject(QString::fromLatin1(busObjectPath), this, QDBusConnection::ExportAdaptors);
  bus.registerService(QString::fromStdString(identity_.name));
}

void ApplicationAdaptor::Activate(const QVariantMap& platform_data) {
  object_.requests().activate(platform_data.value(QStringLiteral("activation-token")).toByteArray().toStdString());
}

void ApplicationAdaptor::Open(const QStringList& uris, const QVariantMap& platform_data) {
  std::vector<std::string> paths;
  for (const QString& uri : uris) {
    std::optional<std::string> path = pathOfAddress(uri);
    if (!path)
      return object_.sendErrorReply(QDBusError::InvalidArgs, uri + QStringLiteral(" is no file of this machine"));
    paths.push_back(std::move(*path));
  }
  Activate(platform_data);
  if (!paths.empty()) object_.requests().openFiles(std::move(paths));
}

void ApplicationAdaptor::ActivateAction(const QString& action_name, const QVariantList& parameter,
                                        const QVariantMap& platform_data) {
  if (action_name != QLatin1String(openToolAction)) {
    return object_.sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("there is no action ") + action_name);
  }
  if (parameter.size() != 1 || parameter.first().typeId() != QMetaType::QString) {
    return object_.sendErrorReply(QDBusError::InvalidArgs, action_name + QStringLiteral(" takes one text, the code"));
  }
  Activate(platform_data);
  object_.requests().openTool(parameter.first().toString().toStdString());
}

void ManagerAdaptor::HandleEvent(const QByteArrayList& items) {
  object_.requests().activate({});
  object_.requests().handleEvent(items.isEmpty() ? std::nullopt : std::optional(items.first().toStdString()));
}

}  // namespace tarvo
