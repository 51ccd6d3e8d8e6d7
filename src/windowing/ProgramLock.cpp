// SPDX-License-Identifier: MIT
#include "windowing/ProgramLock.h"

#include <QCryptographicHash>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <algorithm>

namespace {

const char* const kLockName = ".tavlora.lock";
constexpr int kAnswerMilliseconds = 2000;
constexpr int kBetweenTries = 20;

// The file of a process that is gone can't be taken over where nothing can be deleted.
bool TakesFiles(const QString& sFolder) { return QFileInfo(sFolder).isWritable(); }

} // namespace

ProgramLock::ProgramLock(const QString& sFolder, QObject* parent)
    : QObject(parent), m_folder(QDir(sFolder).canonicalPath()),
      m_file(QDir(sFolder).filePath(QString::fromLatin1(kLockName))) {
    // However old the file is, the process that wrote it decides.
    m_file.setStaleLockTime(0);
}

ProgramLock::~ProgramLock() { Release(); }

bool ProgramLock::Take() {
    if (!m_file.tryLock() && m_file.error() == QLockFile::LockFailedError && TakesFiles(m_folder)) return false;
    Listen();
    return true;
}

ProgramLock::Start ProgramLock::TakeOrCall(const QString& sGame, int milliseconds) {
    QElapsedTimer tried;
    tried.start();
    for (;;) {
        if (Take()) return Start::Taken;
        const int left = int(std::max<qint64>(milliseconds - tried.elapsed(), 0));
        if (CallHolder(sGame, left)) return Start::HandedOver;
        if (tried.elapsed() >= milliseconds) return Start::NoAnswer;
        QThread::msleep(kBetweenTries);
    }
}

void ProgramLock::Release() {
    m_server.reset();
    if (m_file.isLocked()) m_file.unlock();
}

qint64 ProgramLock::Holder() const {
    qint64 process = 0;
    QString host;
    QString program;
    return m_file.getLockInfo(&process, &host, &program) ? process : 0;
}

QString ProgramLock::ServerName() const {
    // The folder's path may be too long for a socket's name.
    const QByteArray hash = QCryptographicHash::hash(m_folder.toUtf8(), QCryptographicHash::Sha256).toHex();
    return QStringLiteral("tavlora-") + QString::fromLatin1(hash.left(24));
}

void ProgramLock::Listen() {
    // What a program left behind that was killed would keep the name taken. We hold the folder, so it is ours.
    QLocalServer::removeServer(ServerName());
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, &ProgramLock::Answer);
    m_server->listen(ServerName());
}

void ProgramLock::Answer() {
    const std::unique_ptr<QLocalSocket> socket(m_server->nextPendingConnection());
    if (!socket) return;
    while (!socket->canReadLine() && socket->waitForReadyRead(kAnswerMilliseconds)) {
    }
    if (!socket->canReadLine()) return;
    const QString game = QString::fromUtf8(QByteArray::fromPercentEncoding(socket->readLine().trimmed()));
    socket->write("ok\n");
    socket->waitForBytesWritten(kAnswerMilliseconds);
    socket->disconnectFromServer();
    Q_EMIT Called(game);
}

bool ProgramLock::CallHolder(const QString& sGame, int milliseconds) const {
    QLocalSocket socket;
    socket.connectToServer(ServerName());
    if (!socket.waitForConnected(milliseconds)) return false;
    socket.write(sGame.toUtf8().toPercentEncoding() + '\n');
    socket.flush();
    // The answer may already be here: it then never becomes ready to be read again.
    while (!socket.canReadLine() && socket.waitForReadyRead(milliseconds)) {
    }
    return socket.canReadLine();
}
