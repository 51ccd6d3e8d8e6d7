// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureOwner.h"

#include <QString>

#include <array>

/// What the user was told of the pictures of one piece of the game, so that nothing is told at each paint. Kept
/// beside the records: the copies of a record, as an editor has one, share what was told.
class TellOnce {
public:
    enum class Fault {
        Picture,   ///< Missing, or no picture.
        Thumbnail, ///< The thumbnail's file is bad; the picture may be good.
        Metafile,  ///< It couldn't be played.
        Deletion,  ///< The thumbnail's file can't be deleted.
        Blank,     ///< The kit's empty banknote.
        Oval       ///< What stands in a banknote without a picture.
    };

    /// The memory of a piece. Pictures that stand for themselves share one. Kept for the run.
    static TellOnce& About(const PictureOwner& owner);
    /// For tests: nobody was told anything yet.
    static void ForgetAll();

    /// The path that was told last; empty for none.
    const QString& LastTold(Fault fault) const { return m_told[size_t(fault)]; }
    bool WasTold(Fault fault, const QString& sPath) const { return LastTold(fault) == sPath; }
    /// Somebody else has told; with an empty path, whatever it was may be told again.
    void Note(Fault fault, const QString& sPath) { m_told[size_t(fault)] = sPath; }
    /// Queues the message unless this path was the one told last.
    void Tell(Fault fault, const QString& sPath, const QString& sText, int iStyle);

private:
    std::array<QString, 6> m_told;
};
