// SPDX-License-Identifier: MIT
#include "pictures/ThumbnailStore.h"

#include "pictures/PaintPicture.h"
#include "pictures/PictureMiddle.h"
#include "pictures/ThumbnailFile.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/NewLine.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"

#include <algorithm>

namespace {

using Fault = TellOnce::Fault;
using Kind = PictureOwner::Kind;

ThumbnailMaker::Creator& Creator() {
    static ThumbnailMaker::Creator creator = nullptr;
    return creator;
}

Files::Stamp StampOfPicture(const PictureRef& ref) { return Files::StampOf(Files::InDiskSpelling(ref.sPath)); }

// False when the disk refuses the file.
bool Make(const OwnedPicture& image) try {
    ThumbnailMaker& maker = ThumbnailMaker::Current();
    switch (image.owner.kind) {
        case Kind::Space:
            maker.CreateThumbRotatedTo90(image);
            break;
        case Kind::Corner:
            maker.CreateThumbRotatedTo45(image);
            break;
        default:
            maker.CreateThumbElliptical(image, false);
    }
    return true;
} catch (const TavloraError& error) {
    if (error.Number() != ErrNumber::kFileAccess) throw;
    // A folder that takes no file mustn't keep the board from being painted; the log has the reason.
    basErrLog::ErrDismiss(error.Description());
    return false;
}

} // namespace

ThumbnailMaker::Creator ThumbnailMaker::Install(Creator creator) { return std::exchange(::Creator(), creator); }

ThumbnailMaker& ThumbnailMaker::Current() {
    basErrLog::ErrAssert(::Creator() != nullptr, QStringLiteral("Nobody makes thumbnails"));
    return ::Creator()();
}

ThumbnailStore& ThumbnailStore::Instance() {
    static ThumbnailStore store;
    return store;
}

QSize ThumbnailStore::SizeOf(Kind kind) { return ThumbnailFile::SizeOf(kind); }

int ThumbnailStore::LongerSideOf(Kind kind) {
    const QSize size = SizeOf(kind);
    return std::max(size.width(), size.height());
}

QString ThumbnailStore::PathOf(const PictureOwner& owner) {
    if (!owner.IsPiece()) basErrLog::ErrUnexVal(QStringLiteral("SpaceOrCorner"), owner.KindName());
    const QString name = owner.KindName() + QString::number(owner.iNumber) + QStringLiteral(".bmp");
    return basCommon::JoinPath(basCommon::GetMyGamesDirectory(), name);
}

bool ThumbnailStore::ShowsItsOwn(const OwnedPicture& image) {
    return image.owner.IsPiece() && Files::InDiskSpelling(image.ref.sPath) == PathOf(image.owner);
}

bool ThumbnailStore::IsStale(const OwnedPicture& image) const {
    const auto origin = m_made.constFind(image.owner);
    if (origin == m_made.constEnd() || origin->picture != PictureMiddle::Centered(image.ref)) return true;
    const Files::Stamp picture = StampOfPicture(image.ref);
    if (origin->stamp != picture) return true;
    if (!origin->bOnDisk) return false;
    const Files::Stamp thumbnail = Files::StampOf(PathOf(image.owner));
    return thumbnail != origin->thumbnail || thumbnail.modifiedMs < picture.modifiedMs;
}

bool ThumbnailStore::IsRefused(const PictureOwner& owner) const {
    const auto origin = m_made.constFind(owner);
    return origin != m_made.constEnd() && !origin->bOnDisk;
}

bool ThumbnailStore::Prefetch(const OwnedPicture& image) const {
    const PictureRef& ref = image.ref;
    // Metafiles are played where they are painted.
    if (ref.IsEmpty() || ref.IsMetafile() || !image.owner.IsPiece() || !IsStale(image)) return true;
    return PrefetchPicture(ref.sPath, LongerSideWanted(ref, LongerSideOf(image.owner.kind)));
}

void ThumbnailStore::BringUpToDate(const OwnedPicture& image) {
    if (!IsStale(image)) return;
    const Files::Stamp stamp = StampOfPicture(image.ref);
    const bool bOnDisk = !ShowsItsOwn(image) && Make(image);
    // Only now the middle of a picture that nobody has centred is known.
    m_made.insert(image.owner,
                  {PictureMiddle::Centered(image.ref), stamp, Files::StampOf(PathOf(image.owner)), bOnDisk});
}

QString ThumbnailStore::Fetch(const OwnedPicture& image) {
    const QString& path = image.ref.sPath;
    if (image.ref.IsEmpty()) return {};
    if (!basCommon::DoesFileExist(path)) {
        if (image.Told().LastTold(Fault::Picture).compare(path, Qt::CaseInsensitive) == 0) return {};
        image.Told().Tell(Fault::Picture, path,
                          QStringLiteral("The file named '") + path + QStringLiteral("' was not found.") + kNewLine +
                              QStringLiteral("The image will not be drawn."),
                          vbOKOnly);
        return path;
    }
    QString thumbnail = PathOf(image.owner);
    BringUpToDate(image);
    return thumbnail;
}

void ThumbnailStore::Delete(const PictureOwner& owner) {
    if (!owner.IsPiece()) return;
    const QString name = PathOf(owner);
    TellOnce& told = TellOnce::About(owner);
    QString error;
    if (ThumbnailFile::IsOfTheUser(name, SizeOf(owner.kind)) || Files::Remove(name, error)) {
        m_made.remove(owner);
        told.Note(Fault::Deletion, QString());
        return;
    }
    m_made.insert(owner, Origin());
    const QString blank = kNewLine + kNewLine;
    told.Tell(Fault::Deletion, name,
              QStringLiteral("Unable to delete the file named: ") + name + blank +
                  QStringLiteral("This could cause the space or corner to be displayed incorrectly.") + blank +
                  QStringLiteral("The following error was reported:") + kNewLine + error,
              vbExclamation);
}

void ThumbnailStore::DropUnused(const PictureOwner& owner) {
    const auto origin = m_made.constFind(owner);
    if (origin != m_made.constEnd() && origin->bOnDisk) Delete(owner);
}
