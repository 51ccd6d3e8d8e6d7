// SPDX-License-Identifier: MIT
#pragma once

#include <QLockFile>
#include <QObject>
#include <QString>

#include <functional>
#include <memory>

class QLocalServer;

/// Sees to it that one program at a time works in a folder. A file there holds the process number of the
/// one that does; it is ignored when that process is gone. A later start hands over what it was asked to
/// open and ends.
class ProgramLock : public QObject {
    Q_OBJECT

public:
    /// The folder must exist. Nothing is taken yet.
    explicit ProgramLock(const QString& sFolder, QObject* parent = nullptr);
    ~ProgramLock() override;

    /// False when another living program works in the folder. In a folder that takes no new file nobody is
    /// kept out, as nobody could keep anything in it.
    bool Take();
    /// Takes the folder, or asks the program that holds it as CallHolder does. Tried until one of the two works
    /// or the time is over: the holder may just be starting, and not listen yet, or be about to end.
    enum class Start { Taken, HandedOver, NoAnswer };
    Start TakeOrCall(const QString& sGame, int milliseconds = 5000);
    /// Gives the folder free; the end of the program does it too.
    void Release();
    /// Process number of the program that holds the folder; 0 when it can't be told.
    qint64 Holder() const;

    /// Asks the program that holds the folder to come to the front, with a game to open or an empty text.
    /// False when it didn't answer in time.
    bool CallHolder(const QString& sGame, int milliseconds = 5000) const;

Q_SIGNALS:
    /// Another start wants this program to come to the front and, unless empty, to open a game.
    void Called(const QString& sGame);

private Q_SLOTS:
    void Answer();

private:
    QString ServerName() const;
    void Listen();

    QString m_folder;
    QLockFile m_file;
    std::unique_ptr<QLocalServer> m_server;
};
