// SPDX-License-Identifier: MIT
#include "windows/pictures/DroppedFiles.h"

#include "board/basPosit.h"
#include "game/DroppedPictures.h"
#include "game/Session.h"
#include "pictures/PictureCheck.h"
#include "platform/files/Files.h"
#include "platform/pictures/SavePicture.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "windowing/HourGlass.h"
#include "windowing/PictureData.h"
#include "windows/pictures/KeptPicture.h"

#include <QCoreApplication>
#include <QMimeData>
#include <QUrl>

#include <algorithm>

namespace DroppedFiles {
namespace {

bool Take(Session& session, const DroppedPictures::Outcome& outcome) {
    if (outcome.edit) session.Do(*outcome.edit);
    if (!outcome.sTold.isEmpty()) MsgBox(outcome.sTold, vbInformation);
    return outcome.edit.has_value();
}

// Amid a drop, the program that it comes from waits for its end.
void TellLater(const QString& sText, int iStyle) {
    QMetaObject::invokeMethod(
        qApp, [sText, iStyle] { MsgBox(sText, iStyle); }, Qt::QueuedConnection);
}

} // namespace

// A file that is no picture, too: who drops a letter is told why it can't be taken.
bool Holds(const QMimeData& data) { return data.hasImage() || data.hasUrls(); }

QStringList FilesOf(const QMimeData& data, const QString& sGameName) {
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) files.append(url.toLocalFile());
    }
    if (!files.isEmpty()) return files;
    const Picture picture = PictureIn(data);
    if (picture.IsNull()) {
        TellLater(QStringLiteral("This is the address of a page and no picture. Please save the picture as a file "
                                 "first, and take that."),
                  vbInformation);
        return {};
    }
    QString drive, dir, base, ext, error;
    basCommon::FileNameFactor(sGameName, drive, dir, base, ext);
    const QString folder = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("Pictures of ") + base);
    if (Files::MakeDirectory(folder, error)) {
        const QString path = FreePathIn(folder, QStringLiteral("Picture"), QStringLiteral("png"));
        if (SavePicture(picture, path, error)) return {path};
    }
    TellLater(QStringLiteral("The picture couldn't be kept: ") + error, vbExclamation);
    return {};
}

QStringList Kept(const QStringList& files) {
    const HourGlass working;
    QStringList kept;
    for (const QString& file : files)
        kept.append(WhyNotShown(file).isEmpty() ? KeepPicture(file) : file);
    return kept;
}

bool LayOnto(Session& session, const QStringList& files, const PictureOwner& piece) {
    if (files.isEmpty()) return false;
    basPosit::PosSethDC(&session.MeasuringDevice());
    // What no piece will show isn't copied.
    const QStringList kept = DroppedPictures::Takes(piece) ? Kept(files) : files;
    return Take(session, DroppedPictures::Onto(session.InHand(), kept, piece, WhyNotShown));
}

QString TakeFirst(Session& session, QStringList files, const PictureOwner& piece, bool& bOthers) {
    bOthers = false;
    const auto first =
        std::find_if(files.begin(), files.end(), [](const QString& file) { return WhyNotShown(file).isEmpty(); });
    const QString taken = first == files.end() ? QString() : KeepPicture(*first);
    if (first != files.end()) files.erase(first);
    if (files.isEmpty()) return taken;
    basPosit::PosSethDC(&session.MeasuringDevice());
    bOthers = Take(session, DroppedPictures::Behind(session.InHand(), Kept(files), piece, WhyNotShown));
    return taken;
}

} // namespace DroppedFiles
