// SPDX-License-Identifier: MIT
#pragma once

#include "platform/files/Files.h"
#include "platform/pictures/PictureHead.h"

#include <QHash>

#include <optional>

/// What is known of the files of pictures, so that a game that is checked at each edit reads each file once. A file
/// that was changed is read again.
class PictureFacts {
public:
    struct Fact {
        bool bThere = false;
        /// Nothing for a file that is missing or can't be read.
        std::optional<PictureHead> head;
        /// Why it can't be read.
        QString sError;
    };

    const Fact& Of(const QString& sPath);
    /// Files read so far.
    int Readings() const { return m_readings; }

private:
    struct Known {
        Files::Stamp stamp;
        Fact fact;
    };

    QHash<QString, Known> m_known;
    int m_readings = 0;
};
