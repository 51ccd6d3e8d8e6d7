// SPDX-License-Identifier: MIT
#pragma once

#include "game/Refusal.h"

#include <QByteArray>

#include <optional>

/// Reads and writes a whole game: one text file, one line a record. Measures texts on the device of the
/// GameHost that is installed, and tells it when the game is loaded or saved.
namespace GameFile {

/// iResult is 0, or -1 after a message; the records read so far then stay as they are. Loading an autosave
/// leaves the unsaved state alone and replaces the name by that of the game that was being edited.
void GameLoad(QString& sFileName, int& iResult);

/// bResult is true on success, the opposite sense of GameLoad's. The file that stood there stays whole
/// unless the new one is complete. A disk that fills up only while the records are written is, as ever, no
/// failure of the routine: the work is then kept by Autosave, which tells where it lies.
void GameSave(const QString& sFileName, bool& bResult);

/// The game in hand as its file holds it.
QByteArray Content();
/// Puts a game's content in its place, whole, or leaves what stands there. Tells nobody.
std::optional<Refusal> Write(const QString& sFileName, const QByteArray& content);

/// Tells that a game couldn't be read or written; iResult becomes -1. What there is to say besides stands at the end.
void ReportIOError(const QString& sError, const QString& sAction, const QString& sFileName, const QString& sDuring,
                   int& iResult, const QString& sBesides = QString());

} // namespace GameFile
