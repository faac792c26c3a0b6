#include "ui/instance_call.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QPointer>
#include <utility>

namespace store {
namespace {

constexpr int kPatience = 1000;  // milliseconds
constexpr int kNameLength = 16;

/// One name a user and program file, short enough for the path of a socket.
QString CallName(const QString& programPath) {
  const QByteArray both = (QDir::homePath() + '\n' + programPath).toUtf8();
  const QByteArray hash = QCryptographicHash::hash(both, QCryptographicHash::Sha256).toHex();
  return "store-client-" + QString(hash.left(kNameLength));
}

}  // namespace

void AnswerCalls(const QString& programPath, std::function<void()> comeForward) {
  static QPointer<QLocalServer> server;
  delete server;
  server = new QLocalServer(qApp);
  server->setSocketOptions(QLocalServer::UserAccessOption);
  QObject::connect(server, &QLocalServer::newConnection, server,
                   [calls = server.data(), comeForward = std::move(comeForward)] {
                     while (QLocalSocket* call = calls->nextPendingConnection()) {
                       call->deleteLater();
                       comeForward();
                     }
                   });
  // Whoever asks holds the program's lock, so what stands there is of a run that crashed.
  QLocalServer::removeServer(CallName(programPath));
  server->listen(CallName(programPath));
}

void CallForward(const QString& programPath) {
  QLocalSocket call;
  call.connectToServer(CallName(programPath));
  if (call.waitForConnected(kPatience)) call.disconnectFromServer();
}

}  // namespace store
