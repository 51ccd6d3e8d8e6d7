// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

/// The games that were opened or saved last, the latest first; kept in the settings.
namespace RecentGames {

constexpr int kMost = 10;

/// Full paths.
QStringList List();
/// Puts a game ahead of the others.
void Note(const QString& sPath);
/// Another file has taken the place of one: the game was found there.
void Replace(const QString& sPath, const QString& sFound);
bool IsAway(const QString& sPath);
/// As menu entries: numbered, and those that aren't there any more marked with where they were.
QStringList Captions(const QStringList& paths);

} // namespace RecentGames
