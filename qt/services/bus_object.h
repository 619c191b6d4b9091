// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayList>
#include <QDBusAbstractAdaptor>
#include <QDBusContext>
#include <QStringList>
#include <QVariant>

#include "qt/services/bus_service.h"

// The manager's object on the bus and its two interfaces. The names of slots, properties and parameters are those that
// callers and their tools see. A call that asks for something the manager does not have is answered by an error.
namespace tarvo {

// Lives in the thread of the service; its connection ends with it.
class BusObject : public QObject, public QDBusContext {
  Q_OBJECT

 public:
  // requests: called in the order of the calls, from the object's thread.
  BusObject(BusIdentity identity, BusRequests requests);
  ~BusObject() override;
  void appear();  // on the bus, under the name if that is free

  const BusIdentity& identity() const { return identity_; }
  const BusRequests& requests() const { return requests_; }
  // A place for the present call; null after an error was sent to its caller: as many as may wait do so.
  RequestPlace admit();

 private:
  BusIdentity identity_;
  BusRequests requests_;
  QString connection_;
};

class ApplicationAdaptor : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  explicit ApplicationAdaptor(BusObject& object) : QDBusAbstractAdaptor(&object), object_(object) {}

 public Q_SLOTS:
  void Activate(const QVariantMap& platform_data);
  void Open(const QStringList& uris, const QVariantMap& platform_data);
  void ActivateAction(const QString& action_name, const QVariantList& parameter, const QVariantMap& platform_data);

 private:
  RequestPlace activate(const QVariantMap& platform_data);
  BusObject& object_;
};

class ManagerAdaptor : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "com.wordhaven.TarvoManager1")
  Q_PROPERTY(QString Home READ home CONSTANT)
  Q_PROPERTY(QString Root READ root CONSTANT)

 public:
  explicit ManagerAdaptor(BusObject& object) : QDBusAbstractAdaptor(&object), object_(object) {}
  QString home() const { return QString::fromStdString(object_.identity().home); }
  QString root() const { return QString::fromStdString(object_.identity().root); }

 public Q_SLOTS:
  void HandleEvent(const QByteArrayList& items);

 private:
  BusObject& object_;
};

}  // namespace tarvo
