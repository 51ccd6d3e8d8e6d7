// SPDX-License-Identifier: MIT
#pragma once

#include "game/Edit.h"
#include "pictures/PictureOwner.h"

#include <QHash>
#include <QStringList>

#include <functional>
#include <vector>

/// Pictures of a game that aren't where they were, as after their folder was moved or renamed.
namespace MissingPictures {

struct Missing {
    PictureOwner piece;
    /// Where the picture was.
    QString sPath;
};

/// In the order in which pieces are told of.
std::vector<Missing> Of(const Game& game);

/// Old paths and the new ones.
using Places = QHash<QString, QString>;

/// All pieces whose picture was found again show it, and the same part of it.
Edit Moved(const Game& game, const Places& places);

/// Looks for all other missing pictures where one was found. Goes step by step, so that whoever waits can show how far
/// it is, and stop it.
class Search {
public:
    /// The picture that was at sOld is the file sNew; the others are looked for in the folder of that and below.
    Search(const Game& game, const QString& sOld, const QString& sNew);
    ~Search();

    /// Looks into one more folder; false when there is none left.
    bool Step();
    int FoldersSeen() const { return m_iSeen; }
    /// What is known when all folders, or enough of them, were looked into. Of several files of a name it is the one of
    /// the date and size that the picture had, or else the one that shows what its piece has shown; where nothing
    /// proves one, the picture stays missing.
    Places Found() const;
    /// Names of those that were found more than once without a proof.
    QStringList Doubtful() const { return m_doubtful; }

private:
    struct Wanted;
    QString PlaceBelowMovedFolder(const QString& sOld) const;
    QString Proven(const Wanted& wanted) const;

    QString m_sOld;
    QString m_sNew;
    std::vector<Wanted> m_wanted;
    QStringList m_folders;
    int m_iSeen = 0;
    mutable QStringList m_doubtful;
};

} // namespace MissingPictures
