// SPDX-License-Identifier: MIT
#pragma once

#include "simulator/RunGames.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <vector>

/// What tavlora-play was asked to do.
struct PlayArguments {
    bool bHelp = false;
    bool bVersion = false;
    int iGames = 20000;
    /// 0: all numbers of players.
    int iPlayers = 0;
    int iSeed = 1;
    int iThreads = 2;
    /// Kits whose deeds are played with.
    std::vector<Kit> kits = {Kit::Eight, Kit::Five};
    /// The game whose news cards are drawn; empty for the one that a new game starts from.
    QString sGame;
    /// Folder of the program's own data files; empty for the usual one.
    QString sData;
    /// Folder for the report and its pictures; empty for none.
    QString sReport;

    /// Reads the words behind the program's name. Nothing, and a sentence in sError, for wrong usage.
    static std::optional<PlayArguments> Parse(const QStringList& words, QString& sError);
    static QString Usage();
};
