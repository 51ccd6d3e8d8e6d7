// SPDX-License-Identifier: MIT
#pragma once

#include "windowing/StartSocket.h"

#include <QLockFile>
#include <QObject>
#include <QString>

/// Sees to it that one program at a time works in a folder. A file there holds the process number of the
/// one that does; it is ignored when that process is gone. A later start hands over what it was asked to
/// open and ends.
class ProgramLock : public QObject {
    Q_OBJECT

public:
    /// The folder must exist. Nothing is taken yet.
    explicit ProgramLock(const QString& sFolder, QObject* parent = nullptr);
    ~ProgramLock() override;

    /// False when another living program works in the folder, or one of another computer may. In a folder that takes
    /// no new file nobody is kept out, as nobody could keep anything in it.
    bool Take();
    /// Takes the folder, or asks the program that holds it as CallHolder does. Tried until one of the two works
    /// or the time is over: the holder may just be starting, and not listen yet, or be about to end. A file that
    /// names nobody is taken over; about one of another computer nothing can be found out here.
    enum class Start { Taken, HandedOver, OtherComputer, NoAnswer };
    Start TakeOrCall(const QString& sGame, int milliseconds = 5000);
    /// Works in the folder whoever else may: for a user who has said so.
    void TakeAnyway();
    /// Gives the folder free; the end of the program does it too.
    void Release();

    /// Process number of the program that holds the folder; 0 when it can't be told.
    qint64 Holder() const;
    /// Name of the computer on which it runs; empty when it can't be told.
    QString HoldersComputer() const;
    QString FilePath() const { return m_path; }

    /// Asks the program that holds the folder to come to the front, with a game to open or an empty text.
    /// False when it didn't answer in time.
    bool CallHolder(const QString& sGame, int milliseconds = 5000) const;

Q_SIGNALS:
    /// Another start wants this program to come to the front and, unless empty, to open a game.
    void Called(const QString& sGame);

private:
    struct Note;
    Note ReadNote() const;
    bool TakeFile();
    bool ClearNote();

    QString m_folder;
    QString m_path;
    QLockFile m_file;
    StartSocket m_socket;
};
