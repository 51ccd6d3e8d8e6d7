// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QLocalServer;
class QLocalSocket;

/// How a start of the program reaches the one that is already running in a folder: a socket where nobody but this user
/// can come. A call names a game to open, or nothing.
class StartSocket : public QObject {
    Q_OBJECT

public:
    explicit StartSocket(const QString& sFolder, QObject* parent = nullptr);
    ~StartSocket() override;

    /// From here on calls are answered, as long as events run. Whoever listened for this folder before doesn't any
    /// more. False where the user has no place of their own for a socket.
    bool Listen();
    void Close();
    /// False when nobody answered in time.
    bool Call(const QString& sGame, int milliseconds) const;

Q_SIGNALS:
    void Called(const QString& sGame);

private Q_SLOTS:
    void Accept();
    void ReadCaller();

private:
    void ReadFrom(QLocalSocket& caller);
    /// Empty where there is no place for it.
    QString Name() const;

    QString m_folder;
    std::unique_ptr<QLocalServer> m_server;
};
