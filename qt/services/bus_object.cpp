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

RequestPlace BusObject::admit() {
  RequestPlace place = requests_.places.take();
  if (!place) {
    sendErrorReply(QString::fromLatin1(busyError),
                   QStringLiteral("%1 requests wait already: try again later").arg(RequestPlaces::most));
  }
  return place;
}

void ApplicationAdaptor::Activate(const QVariantMap& platform_data) { activate(platform_data); }

RequestPlace ApplicationAdaptor::activate(const QVariantMap& platform_data) {
  RequestPlace place = object_.admit();
  if (!place) return nullptr;
  object_.requests().activate(platform_data.value(QStringLiteral("activation-token")).toByteArray().toStdString(),
                              place);
  return place;
}

void ApplicationAdaptor::Open(const QStringList& uris, const QVariantMap& platform_data) {
  std::vector<std::string> paths;
  for (const QString& uri : uris) {
    std::optional<std::string> path = pathOfAddress(uri);
    if (!path)
      return object_.sendErrorReply(QDBusError::InvalidArgs, uri + QStringLiteral(" is no file of this machine"));
    paths.push_back(std::move(*path));
  }
  const RequestPlace place = activate(platform_data);
  if (place && !paths.empty()) object_.requests().openFiles(std::move(paths), place);
}

void ApplicationAdaptor::ActivateAction(const QString& action_name, const QVariantList& parameter,
                                        const QVariantMap& platform_data) {
  if (action_name != QLatin1String(openToolAction)) {
    return object_.sendErrorReply(QDBusError::InvalidArgs, QStringLiteral("there is no action ") + action_name);
  }
  if (parameter.size() != 1 || parameter.first().typeId() != QMetaType::QString) {
    return object_.sendErrorReply(QDBusError::InvalidArgs, action_name + QStringLiteral(" takes one text, the code"));
  }
  const RequestPlace place = activate(platform_data);
  if (place) object_.requests().openTool(parameter.first().toString().toStdString(), place);
}

void ManagerAdaptor::HandleEvent(const QByteArrayList& items) {
  const RequestPlace place = object_.admit();
  if (!place) return;
  object_.requests().activate({}, place);
  object_.requests().handleEvent(items.isEmpty() ? std::nullopt : std::optional(items.first().toStdString()), place);
}

}  // namespace tarvo
