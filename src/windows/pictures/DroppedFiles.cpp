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
#include "windowing/PictureData.h"
#include "windows/pictures/BrowsePlaces.h"
#include "windows/pictures/KeptPicture.h"

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

} // namespace

bool Holds(const QMimeData& data) {
    constexpr int kManyColors = 24;
    const QString names = BrowsePlaces::AllPicturesFilter(true, kManyColors);
    const QList<QUrl> urls = data.urls();
    return data.hasImage() || std::any_of(urls.begin(), urls.end(), [&names](const QUrl& url) {
               const QString file = url.toLocalFile();
               return !file.isEmpty() && (BrowsePlaces::IsListed(names, file) || WhyNoPicture(file).isEmpty());
           });
}

QStringList FilesOf(const QMimeData& data, const QString& sGameName) {
    QStringList files;
    for (const QUrl& url : data.urls()) {
        if (url.isLocalFile()) files.append(url.toLocalFile());
    }
    const Picture picture = files.isEmpty() ? PictureIn(data) : Picture();
    if (picture.IsNull()) return files;
    QString drive, dir, base, ext, error;
    basCommon::FileNameFactor(sGameName, drive, dir, base, ext);
    const QString folder = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("Pictures of ") + base);
    if (Files::MakeDirectory(folder, error)) {
        const QString path = FreePathIn(folder, QStringLiteral("Picture"), QStringLiteral("png"));
        if (SavePicture(picture, path, error)) return {path};
    }
    MsgBox(QStringLiteral("The picture couldn't be kept: ") + error, vbExclamation);
    return {};
}

QStringList Kept(const QStringList& files) {
    QStringList kept;
    for (const QString& file : files)
        kept.append(WhyNoPicture(file).isEmpty() ? KeepPicture(file) : file);
    return kept;
}

bool LayOnto(Session& session, const QStringList& files, const PictureOwner& piece) {
    if (files.isEmpty()) return false;
    basPosit::PosSethDC(&session.MeasuringDevice());
    return Take(session, DroppedPictures::Onto(session.InHand(), Kept(files), piece, WhyNoPicture));
}

QString TakeFirst(Session& session, QStringList files, const PictureOwner& piece, bool& bOthers) {
    bOthers = false;
    const auto first =
        std::find_if(files.begin(), files.end(), [](const QString& file) { return WhyNoPicture(file).isEmpty(); });
    const QString taken = first == files.end() ? QString() : KeepPicture(*first);
    if (first != files.end()) files.erase(first);
    if (files.isEmpty()) return taken;
    basPosit::PosSethDC(&session.MeasuringDevice());
    bOthers = Take(session, DroppedPictures::Behind(session.InHand(), Kept(files), piece, WhyNoPicture));
    return taken;
}

} // namespace DroppedFiles
