// SPDX-License-Identifier: MIT
#include "game/MissingPictures.h"

#include "game/PieceImages.h"
#include "pictures/MissingMark.h"
#include "pictures/SeenPictures.h"
#include "pictures/ThumbnailStore.h"
#include "platform/files/FolderListing.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/pictures/PictureDifference.h"
#include "platform/pictures/PictureHead.h"
#include "services/basPath.h"

#include <algorithm>
#include <cstdlib>

namespace MissingPictures {
namespace {

// A link may lead back into its own folder, and nobody keeps photos deeper or in more folders than these.
constexpr int kDeepest = 24;
constexpr int kMostFolders = 50000;

bool IsSeparator(QChar c) { return c == u'/' || c == u'\\'; }

QString NameOf(const QString& sPath) {
    qsizetype start = sPath.size();
    while (start > 0 && !IsSeparator(sPath[start - 1]))
        --start;
    return sPath.mid(start);
}

QString FolderOf(const QString& sPath) { return sPath.left(sPath.size() - NameOf(sPath).size()); }

// How much of the ends of both paths is the same, in whole names.
qsizetype SameEnd(const QString& sOne, const QString& sOther) {
    qsizetype same = 0;
    const qsizetype most = std::min(sOne.size(), sOther.size());
    for (qsizetype i = 1; i <= most; ++i) {
        const QChar c = sOne[sOne.size() - i];
        if (c.toCaseFolded() != sOther[sOther.size() - i].toCaseFolded()) return same;
        if (IsSeparator(c)) same = i;
    }
    return same;
}

template <typename Fits>
QStringList Those(const QStringList& files, Fits fits) {
    QStringList left;
    std::copy_if(files.begin(), files.end(), std::back_inserter(left), fits);
    return left;
}

bool AreCopies(const QStringList& files) {
    QString error;
    const std::optional<QByteArray> first = Files::ReadAll(files.first(), error);
    return first && std::all_of(files.begin() + 1, files.end(),
                                [&](const QString& file) { return Files::ReadAll(file, error) == first; });
}

// A picture that nobody has cropped is centred on its middle, and so tells its size.
bool HasSizeOf(const QString& sFile, const PictureRef& ref) {
    QString error;
    const std::optional<PictureHead> head = ReadPictureHead(sFile, error);
    return head && std::abs(2 * ref.iXCenter - head->size.width()) <= 1 &&
           std::abs(2 * ref.iYCenter - head->size.height()) <= 1;
}

// The one that looks as the piece did on the board when its picture was still there.
QStringList LookingLike(const QStringList& files, const OwnedPicture& shown) {
    constexpr double kAlike = 6;
    QString error;
    if (!shown.owner.IsOnBoard()) return {};
    const Picture before = LoadPicture(ThumbnailStore::PathOf(shown.owner), error);
    if (before.IsNull()) return {};
    return Those(files, [&](const QString& file) {
        OwnedPicture candidate = shown;
        candidate.ref.sPath = file;
        const int side = ThumbnailStore::LongerSideOf(shown.owner.kind);
        return PictureDifference(ThumbnailMaker::Current().RenderRotated(candidate, side), before) < kAlike;
    });
}

} // namespace

struct Search::Wanted {
    OwnedPicture shown;
    QString sName;
    QStringList files;
};

std::vector<Missing> Of(const Game& game) {
    std::vector<Missing> missing;
    for (const PictureOwner& piece : PieceImages::Pieces()) {
        const PictureRef& ref = PieceImages::Of(game, piece).Ref();
        if (IsMissing(ref)) missing.push_back({piece, ref.sPath});
    }
    return missing;
}

Edit Moved(const Game& game, const Places& places) {
    Edit edit{QString(), game};
    int moved = 0;
    for (const PictureOwner& piece : PieceImages::Pieces()) {
        C_Image& image = PieceImages::Of(edit.after, piece);
        const auto place = places.constFind(image.FullPath());
        if (place == places.constEnd()) continue;
        PieceImages::MoveTo(image, *place);
        ++moved;
    }
    edit.sName =
        moved == 1 ? QStringLiteral("Picture Found Again") : QStringLiteral("%1 Pictures Found Again").arg(moved);
    return edit;
}

Search::Search(const Game& game, const QString& sOld, const QString& sNew)
    : m_sOld(sOld), m_sNew(sNew), m_folders(FolderOf(sNew)) {
    QStringList known{sOld};
    for (const Missing& missing : Of(game)) {
        if (known.contains(missing.sPath)) continue;
        known.append(missing.sPath);
        m_wanted.push_back({PieceImages::Of(game, missing.piece).Owned(), NameOf(missing.sPath), {}});
    }
}

Search::~Search() = default;

bool Search::Step() {
    if (m_folders.isEmpty() || m_wanted.empty() || m_iSeen >= kMostFolders) return false;
    ++m_iSeen;
    const QString folder = m_folders.takeFirst();
    QString error;
    for (const QString& name : FolderListing::Files(folder, {QStringLiteral("*")}, error).value_or(QStringList())) {
        for (Wanted& wanted : m_wanted) {
            if (name.compare(wanted.sName, Qt::CaseInsensitive) == 0)
                wanted.files.append(basCommon::JoinPath(folder, name));
        }
    }
    if (folder.count(u'/') + folder.count(u'\\') - m_sNew.count(u'/') - m_sNew.count(u'\\') < kDeepest) {
        for (const QString& name : FolderListing::Folders(folder, error).value_or(QStringList()))
            m_folders.append(basCommon::JoinPath(folder, name));
    }
    return true;
}

// A folder that was renamed or moved as a whole holds the others where they were in it.
QString Search::PlaceBelowMovedFolder(const QString& sOld) const {
    const qsizetype same = SameEnd(m_sOld, m_sNew);
    const QString before = m_sOld.chopped(same);
    const bool below = sOld.size() > before.size() && sOld.startsWith(before) && IsSeparator(sOld[before.size()]);
    if (same == 0 || !below) return {};
    const QString place = m_sNew.chopped(same) + sOld.mid(before.size());
    const Files::Stamp seen = SeenPictures::Of(sOld);
    const bool itself = seen == Files::Stamp() || Files::StampOf(place).size == seen.size;
    return basCommon::DoesFileExist(place) && itself ? place : QString();
}

QString Search::Proven(const Wanted& wanted) const {
    const PictureRef& ref = wanted.shown.ref;
    QStringList files = wanted.files;
    if (const QString place = PlaceBelowMovedFolder(ref.sPath); !place.isEmpty()) return place;
    if (files.size() < 2) return files.value(0);
    const Files::Stamp seen = SeenPictures::Of(ref.sPath);
    if (seen != Files::Stamp()) {
        const QStringList sized =
            Those(files, [&](const QString& file) { return Files::StampOf(file).size == seen.size; });
        const QStringList dated = Those(sized, [&](const QString& file) { return Files::StampOf(file) == seen; });
        if (!sized.isEmpty()) files = dated.isEmpty() ? sized : dated;
    }
    if (files.size() > 1 && !AreCopies(files)) {
        const QStringList alike = LookingLike(files, wanted.shown);
        if (!alike.isEmpty()) files = alike;
    }
    if (files.size() > 1 && ref.iZoom == 0 && ref.IsCentered() && !AreCopies(files)) {
        const QStringList sized = Those(files, [&](const QString& file) { return HasSizeOf(file, ref); });
        if (!sized.isEmpty()) files = sized;
    }
    return files.size() == 1 || AreCopies(files) ? files.first() : QString();
}

Places Search::Found() const {
    Places places{{m_sOld, m_sNew}};
    for (const Wanted& wanted : m_wanted) {
        const QString place = Proven(wanted);
        if (!place.isEmpty()) {
            places.insert(wanted.shown.ref.sPath, place);
        } else if (!wanted.files.isEmpty()) {
            m_doubtful.append(wanted.sName);
        }
    }
    return places;
}

} // namespace MissingPictures
