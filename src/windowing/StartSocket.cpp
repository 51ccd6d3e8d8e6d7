// SPDX-License-Identifier: MIT
#include "windowing/StartSocket.h"

#include "platform/files/Folders.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>

namespace {

// A caller has a path to tell and is a program: what is slower, longer or more than this is none.
constexpr int kCallMilliseconds = 2000;
constexpr qint64 kLongestCall = 16384;
constexpr qsizetype kMostCallers = 16;

} // namespace

StartSocket::StartSocket(const QString& sFolder, QObject* parent) : QObject(parent), m_folder(sFolder) {}
StartSocket::~StartSocket() = default;

QString StartSocket::Name() const {
    // The folder's path may be too long for a socket's name.
    const QByteArray hash = QCryptographicHash::hash(m_folder.toUtf8(), QCryptographicHash::Sha256).toHex();
    const QString name = QStringLiteral("tavlora-") + QString::fromLatin1(hash.left(24));
#ifdef Q_OS_WIN
    return name;
#else
    const QString folder = Folders::Runtime();
    return folder.isEmpty() ? QString() : QDir(folder).filePath(name);
#endif
}

bool StartSocket::Listen() {
    const QString name = Name();
    if (name.isEmpty()) return false;
    // What a program left behind that was killed would keep the name taken.
    QLocalServer::removeServer(name);
    m_server = std::make_unique<QLocalServer>();
#ifdef Q_OS_WIN
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
#endif
    connect(m_server.get(), &QLocalServer::newConnection, this, &StartSocket::Accept);
    return m_server->listen(name);
}

void StartSocket::Close() { m_server.reset(); }

// Nothing here waits: bytes that come slowly must not keep the window from living.
void StartSocket::Accept() {
    while (QLocalSocket* const caller = m_server ? m_server->nextPendingConnection() : nullptr) {
        if (m_server->findChildren<QLocalSocket*>().size() > kMostCallers) {
            delete caller;
            continue;
        }
        caller->setReadBufferSize(kLongestCall);
        connect(caller, &QLocalSocket::readyRead, this, &StartSocket::ReadCaller);
        connect(caller, &QLocalSocket::disconnected, caller, &QObject::deleteLater);
        QTimer::singleShot(kCallMilliseconds, caller, &QLocalSocket::abort);
        ReadFrom(*caller);
    }
}

void StartSocket::ReadCaller() {
    if (auto* const caller = qobject_cast<QLocalSocket*>(sender())) ReadFrom(*caller);
}

void StartSocket::ReadFrom(QLocalSocket& caller) {
    if (!caller.canReadLine()) {
        if (caller.bytesAvailable() >= kLongestCall) caller.abort();
        return;
    }
    caller.disconnect(this);
    const QString game = QString::fromUtf8(QByteArray::fromPercentEncoding(caller.readLine().trimmed()));
    caller.write("ok\n");
    caller.disconnectFromServer();
    Q_EMIT Called(game);
}

bool StartSocket::Call(const QString& sGame, int milliseconds) const {
    const QString name = Name();
    if (name.isEmpty()) return false;
    QLocalSocket socket;
    socket.connectToServer(name);
    if (!socket.waitForConnected(milliseconds)) return false;
    socket.write(sGame.toUtf8().toPercentEncoding() + '\n');
    socket.flush();
    // The answer may already be here: it then never becomes ready to be read again.
    while (!socket.canReadLine() && socket.waitForReadyRead(milliseconds)) {
    }
    return socket.canReadLine();
}
