// SPDX-License-Identifier: MIT
#include "help/OneViewer.h"

#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QLocalSocket>
#include <QStandardPaths>

#include <thread>

namespace velmora {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int AnswerPatience = 2000;
constexpr auto Pause = 20ms;
/// Far more than a path, a topic and a token need.
constexpr qsizetype LongestRequest = 65536;
constexpr char Taken = '!';

QString Place() {
  const QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
  if (folder.isEmpty()) return {};
  // A window comes up where it was asked for.
  const QByteArray display = qgetenv("WAYLAND_DISPLAY") + '|' + qgetenv("DISPLAY");
  const QByteArray sum = QCryptographicHash::hash(display, QCryptographicHash::Sha1).toHex();
  constexpr qsizetype enough = 12;
  return folder + u"/velmora-help-"_s + QString::fromLatin1(sum.first(enough));
}

}  // namespace

OneViewer::OneViewer(QObject* parent) : QObject(parent), m_place(Place()) {
  connect(&m_server, &QLocalServer::newConnection, this, &OneViewer::Receive);
}

OneViewer::~OneViewer() { m_server.close(); }

OneViewer::Outcome OneViewer::Join(const HelpRequest& request, std::chrono::milliseconds patience) {
  if (m_place.isEmpty()) return Outcome::Alone;
  const QDeadlineTimer end(patience);
  // Another viewer may just be coming up, or just be going.
  while (true) {
    if (TakePlace()) return m_server.isListening() ? Outcome::First : Outcome::Alone;
    if (HandOver(request)) return Outcome::HandedOver;
    if (end.hasExpired() || !QFileInfo(QFileInfo(m_place).path()).isWritable()) return Outcome::Alone;
    std::this_thread::sleep_for(Pause);
  }
}

bool OneViewer::TakePlace() {
  auto lock = std::make_unique<QLockFile>(m_place + u".lock"_s);
  // A lock is free when its holder is gone, and never before.
  lock->setStaleLockTime(0);
  if (!lock->tryLock(0)) return false;
  m_lock = std::move(lock);
  // Whoever holds the lock is alone: a socket that is there belongs to nobody, and listening replaces it.
  m_server.setSocketOptions(QLocalServer::UserAccessOption);
  m_server.listen(m_place);
  return true;
}

bool OneViewer::HandOver(const HelpRequest& request) const {
  QLocalSocket socket;
  socket.connectToServer(m_place);
  if (!socket.waitForConnected(AnswerPatience)) return false;
  socket.write(Packed(request));
  if (!socket.waitForBytesWritten(AnswerPatience)) return false;
  return socket.waitForReadyRead(AnswerPatience) && socket.read(1) == QByteArray(1, Taken);
}

void OneViewer::Receive() {
  while (QLocalSocket* socket = m_server.nextPendingConnection()) {
    socket->setParent(this);
    connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
    const auto read = [this, socket] {
      if (socket->bytesAvailable() > LongestRequest) {
        socket->abort();
        return;
      }
      // It may come in pieces; what is no whole request yet is read again with the next piece.
      const std::optional<HelpRequest> request = Unpacked(socket->peek(LongestRequest));
      if (!request) return;
      socket->readAll();
      socket->write(QByteArray(1, Taken));
      socket->flush();
      Q_EMIT Asked(*request);
    };
    connect(socket, &QLocalSocket::readyRead, this, read);
    if (socket->bytesAvailable() > 0) read();
  }
}

}  // namespace velmora
