// SPDX-License-Identifier: MIT
#include "windows/pictures/BrowsePlaces.h"

#include "pictures/ThumbnailFile.h"
#include "platform/files/Folders.h"
#include "services/basPath.h"

#include <algorithm>

namespace BrowsePlaces {
namespace {

constexpr int kFewColorsBits = 8;

bool IsSeparator(QChar c) { return c == u'/' || c == u'\\'; }

// "\\server", above which there is nothing.
bool IsServer(const QString& sFolder) {
    return sFolder.startsWith(QStringLiteral("\\\\")) && sFolder.indexOf(u'\\', 2) < 0;
}

// "/" and "C:\" end in a separator that belongs to them.
bool IsRoot(const QString& sFolder) {
    return sFolder == QStringLiteral("/") || (sFolder.size() <= 3 && sFolder.mid(1, 1) == QStringLiteral(":")) ||
           IsServer(sFolder);
}

QString WithoutLastSeparator(QString sFolder) {
    while (sFolder.size() > 1 && IsSeparator(sFolder.back()) && !IsRoot(sFolder))
        sFolder.chop(1);
    return sFolder;
}

bool LiesIn(const QString& sRoot, const QString& sFolder) {
    return sFolder == sRoot || sFolder.startsWith(basCommon::JoinPath(sRoot, QString()));
}

void AddIfThere(QList<Place>& places, PlaceKind kind, const QString& sRoot, const QString& sName) {
    if (basCommon::DoesDirExist(sRoot)) places.append({kind, WithoutLastSeparator(sRoot), sName});
}

} // namespace

QList<Place> Places() {
    QList<Place> places;
    AddIfThere(places, PlaceKind::Home, Folders::Home(), QStringLiteral("Home"));
    AddIfThere(places, PlaceKind::Pictures, Folders::Pictures(), QStringLiteral("Pictures"));
    AddIfThere(places, PlaceKind::MyGames, basCommon::GetMyGamesDirectory(), QStringLiteral("My Games"));
    for (const Folders::Volume& volume : Folders::Volumes()) {
        const QString root = WithoutLastSeparator(volume.sRoot);
        if (root == WithoutLastSeparator(Folders::Home())) continue;
        const bool namedByPath = volume.sName.isEmpty() || volume.sName == volume.sRoot;
        const QString name = root == QStringLiteral("/") ? QStringLiteral("Computer") : volume.sName;
        places.append({PlaceKind::Volume, root, namedByPath && name == volume.sName ? root : name});
    }
    return places;
}

qsizetype PlaceOf(const QList<Place>& places, const QString& sFolder) {
    const QString folder = WithoutLastSeparator(sFolder);
    qsizetype best = -1;
    for (qsizetype i = 0; i < places.size(); ++i) {
        const bool nearer = best < 0 || places[i].sRoot.size() > places[best].sRoot.size();
        if (LiesIn(places[i].sRoot, folder) && nearer) best = i;
    }
    return best;
}

qsizetype MyGamesPlace(const QList<Place>& places) {
    for (qsizetype i = 0; i < places.size(); ++i) {
        if (places[i].kind == PlaceKind::MyGames) return i;
    }
    return -1;
}

QStringList ChainTo(const QString& sRoot, const QString& sFolder) {
    QStringList chain;
    const QString root = WithoutLastSeparator(sRoot);
    for (QString at = WithoutLastSeparator(sFolder); !at.isEmpty(); at = FolderAbove(at)) {
        chain.prepend(at);
        if (at == root) break;
    }
    return chain;
}

QString FolderAbove(const QString& sFolder) {
    const QString folder = WithoutLastSeparator(sFolder);
    return folder.isEmpty() || IsRoot(folder) ? QString() : FolderOf(folder);
}

QString FolderOf(const QString& sFilePath) {
    QString folder = sFilePath;
    while (!folder.isEmpty() && !IsSeparator(folder.back()) && folder.back() != u':')
        folder.chop(1);
    return WithoutLastSeparator(folder);
}

QString FileIn(const QString& sFolder, const QString& sName) { return basCommon::JoinPath(sFolder, sName); }

QString NameOfFolder(const QString& sFolder) {
    const QString folder = WithoutLastSeparator(sFolder);
    if (IsRoot(folder)) return folder;
    qsizetype start = folder.size();
    while (start > 0 && !IsSeparator(folder[start - 1]))
        --start;
    return folder.mid(start);
}

bool IsOnGamesDrive(const QString& sFilePath, const QString& sGamesDirectory) {
    const bool drives = basCommon::PathFamilyOf(sFilePath) == basCommon::PathFamily::Windows ||
                        basCommon::PathFamilyOf(sGamesDirectory) == basCommon::PathFamily::Windows;
    // A network path begins with a backslash and so agrees with no drive.
    if (drives) return sFilePath.left(1).compare(sGamesDirectory.left(1), Qt::CaseInsensitive) == 0;
    return Folders::OnSameVolume(sFilePath, sGamesDirectory);
}

QString CopyName(const QString& sBase, const QString& sExt, int iCopy) {
    const QString number = iCopy > 0 ? u'(' + QString::number(iCopy) + u')' : QString();
    return sBase + number + u'.' + sExt;
}

int FirstFreeCopy(const QString& sFolder, const QString& sBase, const QString& sExt) {
    const auto isTaken = [&](int iCopy) {
        const QString path = basCommon::JoinPath(sFolder, CopyName(sBase, sExt, iCopy));
        return ThumbnailFile::HasNameOfOne(path) || basCommon::DoesFileExist(path);
    };
    int iCopy = 0;
    while (isTaken(iCopy))
        ++iCopy;
    return iCopy;
}

QString UsualFilter(bool bAllowWMF, int iBitsPerPixel) {
    const bool fewColors = iBitsPerPixel <= kFewColorsBits;
    if (bAllowWMF) return fewColors ? QStringLiteral("*.bmp;*.wmf") : QStringLiteral("*.bmp;*.wmf;*.jpg;*.gif");
    return fewColors ? QStringLiteral("*.bmp;") : QStringLiteral("*.bmp;*.jpg;*.gif");
}

QString AllPicturesFilter(bool bAllowWMF, int iBitsPerPixel) {
    // Few colours show no photograph.
    if (iBitsPerPixel <= kFewColorsBits) return UsualFilter(bAllowWMF, iBitsPerPixel);
    const QString pictures =
        QStringLiteral("*.bmp;*.jpg;*.jpeg;*.jfif;*.gif;*.png;*.webp;*.tif;*.tiff;*.heic;*.heif;*.avif");
    return bAllowWMF ? pictures + QStringLiteral(";*.wmf") : pictures;
}

QStringList PatternsOf(const QString& sFilter) { return sFilter.split(u';', Qt::SkipEmptyParts); }

bool IsListed(const QString& sFilter, const QString& sFilePath) {
    const QStringList patterns = PatternsOf(sFilter);
    return std::any_of(patterns.begin(), patterns.end(), [&sFilePath](const QString& pattern) {
        return sFilePath.endsWith(QStringView(pattern).mid(1), Qt::CaseInsensitive);
    });
}

} // namespace BrowsePlaces
