// SPDX-FileCopyrightText: 2026 The TarvoEiwa Manager authors
// SPDX-License-Identifier: MIT
#include "qt/services/bus_probe.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <QByteArray>
#include <QList>
#include <algorithm>
#include <cerrno>
#include <cstddef>

namespace tarvo {
namespace {

constexpr char addressVariable[] = "DBUS_SESSION_BUS_ADDRESS";
constexpr char noBus[] = "disabled:";
constexpr int patience = 1000;  // ms

// As the socket calls take it: a leading zero stands for an abstract name. "" for a bus of another kind.
QByteArray socketName() {
  QByteArray address = qgetenv(addressVariable);
  if (address.isEmpty()) return qgetenv("XDG_RUNTIME_DIR") + "/bus";
  address = address.split(';').first();
  if (!address.startsWith("unix:")) return {};
  for (const QByteArray& pair : address.mid(5).split(',')) {
    QByteArray value = QByteArray::fromPercentEncoding(pair.mid(pair.indexOf('=') + 1));
    if (pair.startsWith("path=")) return value;
    if (pair.startsWith("abstract=")) return QByteArray(1, '\0') + value;
  }
  return {};
}

// Takes the connection, or has no room for one more, and is silent.
bool hangs(int end, const sockaddr_un& place, socklen_t size) {
  if (connect(end, reinterpret_cast<const sockaddr*>(&place), size) != 0) return errno == EAGAIN;
  constexpr char question[] = "\0AUTH\r\n";  // which ways of identification there are
  if (send(end, question, sizeof question - 1, MSG_NOSIGNAL) < 0) return false;
  pollfd answer{end, POLLIN, 0};
  return poll(&answer, 1, patience) == 0;
}

}  // namespace

void avoidHangingBus() {
  const QByteArray name = socketName();
  sockaddr_un place{};
  place.sun_family = AF_UNIX;
  if (name.isEmpty() || static_cast<std::size_t>(name.size()) >= sizeof place.sun_path) return;
  std::copy(name.begin(), name.end(), place.sun_path);
  const bool isAbstract = name.startsWith('\0');
  const std::size_t size = offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size()) + !isAbstract;
  const int end = socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (end < 0) return;
  if (hangs(end, place, static_cast<socklen_t>(size))) qputenv(addressVariable, noBus);
  close(end);
}

}  // namespace tarvo
