// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/Files.h"
#include "platform/pictures/PictureHead.h"

#include <QHash>

#include <optional>

/// What is known of the files of pictures, so that a game that is checked at each edit reads each file once, and
/// decodes it once: it may be damaged behind its head. A file that was changed is read again.
class PictureFacts {
public:
    struct Fact {
        bool bThere = false;
        /// Nothing for a file that is missing or can't be read.
        std::optional<PictureHead> head;
        /// Why it can't be read.
        QString sError;
        /// False while its head is all that is known of it.
        bool bDecoded = false;
    };
    enum class Decoding {
        Awaited, ///< Of the whole picture, here and now if need be.
        Aside    ///< On another processor: what isn't decoded yet counts as good until it is asked for again.
    };

    const Fact& Of(const QString& sPath, Decoding decoding = Decoding::Awaited);
    /// Files read so far.
    int Readings() const { return m_readings; }

private:
    struct Known {
        Files::Stamp stamp;
        Fact fact;
    };

    Known& HeadOf(const QString& sPath);

    QHash<QString, Known> m_known;
    int m_readings = 0;
};
