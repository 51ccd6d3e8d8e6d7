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
#include <QHash>
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

/// The files of a drop onto a piece, those on disks that may go away kept among the games.
class KeptFiles {
public:
    KeptFiles(const QStringList& files, const PictureOwner& piece) {
        const HourGlass working;
        // What no piece will show isn't copied.
        const bool shown = DroppedPictures::Takes(piece);
        for (const QString& file : files) {
            QString why = WhyNotShown(file);
            const QString kept = shown && why.isEmpty() ? KeepPicture(file, why) : file;
            m_files.append(kept.isEmpty() ? file : kept);
            m_why.insert(m_files.last(), why);
        }
    }
    const QStringList& Files() const { return m_files; }
    /// Why one of them can't be taken; empty where it can.
    QString WhyNot(const QString& sFile) const { return m_why.value(sFile); }
    DroppedPictures::Refusal Refusal() const {
        return [this](const QString& file) { return WhyNot(file); };
    }

private:
    QStringList m_files;
    QHash<QString, QString> m_why;
};

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

bool LayOnto(Session& session, const QStringList& files, const PictureOwner& piece) {
    if (files.isEmpty()) return false;
    const KeptFiles kept(files, piece);
    basPosit::PosSethDC(&session.MeasuringDevice());
    return Take(session, DroppedPictures::Onto(session.InHand(), kept.Files(), piece, kept.Refusal()));
}

QString TakeFirst(Session& session, const QStringList& files, const PictureOwner& piece, bool& bOthers) {
    bOthers = false;
    const KeptFiles kept(files, piece);
    QStringList others = kept.Files();
    const auto first = std::find_if(others.begin(), others.end(),
                                    [&kept](const QString& file) { return kept.WhyNot(file).isEmpty(); });
    const QString taken = first == others.end() ? QString() : *first;
    if (first != others.end()) others.erase(first);
    if (others.isEmpty()) return taken;
    basPosit::PosSethDC(&session.MeasuringDevice());
    bOthers = Take(session, DroppedPictures::Behind(session.InHand(), others, piece, kept.Refusal()));
    return taken;
}

} // namespace DroppedFiles
