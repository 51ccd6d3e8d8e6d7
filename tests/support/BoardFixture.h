// SPDX-License-Identifier: MIT
#pragma once

#include "board/basPosit.h"
#include "platform/files/Folders.h"
#include "services/ProgramSettings.h"
#include "support/GameFixture.h"

#include <QDir>

/// A game with a program's directory of its own, which holds rents of the test's making.
class BoardTest : public GameTest {
protected:
    BoardTest() {
        basPosit::ResetForTest();
        QDir(folder.path()).mkdir(QStringLiteral("program"));
        QDir(folder.path()).mkdir(QStringLiteral("games"));
        Folders::SetProgramDirectory(PathOf(QStringLiteral("program")));
        Settings().sMyGamesDirectory = PathOf(QStringLiteral("games"));
        WriteRents(28);
    }
    ~BoardTest() override { basPosit::ResetForTest(); }

    /// Row r of kit "8" costs 100 r + 1000, and every further number is r and its column.
    static QByteArray RentRow(int r) {
        QByteArray row = QByteArray::number(r) + ',' + QByteArray::number(100 * r + 1000);
        for (int column = 1; column <= 6; ++column)
            row += ',' + QByteArray::number(10 * r + column);
        return row + ",\"Name " + QByteArray::number(r) + "\"\r\n";
    }
    QString WriteRents(int rows) const {
        QByteArray text;
        for (int r = 0; r < rows; ++r)
            text += RentRow(r);
        return WriteFile(QStringLiteral("program/Rents.dat"), text);
    }
};
