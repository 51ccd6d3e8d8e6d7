// SPDX-License-Identifier: MIT
#include "app/PictureDrop.h"

#include "app/BoardView.h"
#include "board/basPosit.h"
#include "game/DroppedPictures.h"
#include "game/Session.h"
#include "pictures/PictureCheck.h"
#include "platform/files/Files.h"
#include "platform/paint/Units.h"
#include "platform/pictures/SavePicture.h"
#include "services/basErrLog.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "windowing/PictureBox.h"
#include "windowing/PictureData.h"
#include "windows/pictures/BrowsePlaces.h"

#include <QMimeData>
#include <QRubberBand>
#include <QUrl>

#include <algorithm>

namespace {

using Kind = PictureOwner::Kind;

// The board's one place for all notes or tokens stands for the first of them that is free.
template <typename Records, typename Image>
PictureOwner FirstFree(Kind kind, const Records& records, Image image) {
    const auto free = std::find_if(records.begin(), records.end(),
                                   [&](const auto& record) { return image(record).FullPath().isEmpty(); });
    return {kind, free == records.end() ? qint16(0) : qint16(free - records.begin())};
}

basPosit::BoardRect Around(int iCorner) {
    const auto& points = basPosit::m_CornerPoly(iCorner);
    const auto [left, right] =
        std::minmax_element(points.begin(), points.end(), [](const auto& a, const auto& b) { return a.x < b.x; });
    const auto [top, bottom] =
        std::minmax_element(points.begin(), points.end(), [](const auto& a, const auto& b) { return a.y < b.y; });
    return {left->x, top->y, right->x, bottom->y};
}

basPosit::BoardRect RectOf(const BoardPlace& place) {
    if (place.m_iOverSpace >= 0) return basPosit::m_SpaceRect(place.m_iOverSpace, basPosit::SpacePart::Whole);
    if (place.m_iOverCorner >= 0) return Around(place.m_iOverCorner);
    return basPosit::m_CenterRect(place.m_bOverMoney ? basPosit::kMoneyBox : basPosit::kTokensBox);
}

QString FreePathIn(const QString& sFolder, const QString& sBase, const QString& sExt) {
    const int iCopy = BrowsePlaces::FirstFreeCopy(sFolder, sBase, sExt);
    return basCommon::JoinPath(sFolder, BrowsePlaces::CopyName(sBase, sExt, iCopy));
}

} // namespace

PictureDrop::PictureDrop(BoardView& view, Session& session)
    : m_view(view), m_session(session), m_light(new QRubberBand(QRubberBand::Rectangle, &view.Board())) {
    m_light->setObjectName(QStringLiteral("shpDrop"));
}

bool PictureDrop::Holds(const QMimeData& dragged) {
    constexpr int kManyColors = 24;
    const QString names = BrowsePlaces::AllPicturesFilter(true, kManyColors);
    const QList<QUrl> urls = dragged.urls();
    return dragged.hasImage() || std::any_of(urls.begin(), urls.end(), [&names](const QUrl& url) {
               const QString file = url.toLocalFile();
               return !file.isEmpty() && (BrowsePlaces::IsListed(names, file) || WhyNoPicture(file).isEmpty());
           });
}

PictureOwner PictureDrop::PieceUnder(QPoint at) {
    m_view.WhatIsMouseOver(float(at.x() * kTwipsPerPixel), float(at.y() * kTwipsPerPixel));
    const BoardPlace& place = m_view.Over();
    const Game& game = m_session.InHand();
    PictureOwner piece;
    if (place.m_iOverSpace >= 0) piece = {Kind::Space, qint16(place.m_iOverSpace)};
    if (place.m_iOverCorner >= 0) piece = {Kind::Corner, qint16(place.m_iOverCorner)};
    if (place.m_bOverMoney)
        piece =
            FirstFree(Kind::Money, game.money, [](const C_Money& note) -> const C_Image& { return note.FaceImage; });
    if (place.m_bOverTokens)
        piece = FirstFree(Kind::Token, game.tokens, [](const C_Token& token) -> const C_Image& { return token.Image; });
    return DroppedPictures::Takes(piece) ? piece : PictureOwner();
}

bool PictureDrop::Move(QPoint at) {
    if (!PieceUnder(at).IsPiece()) {
        Leave();
        return false;
    }
    LightUp(m_view.Over());
    return true;
}

void PictureDrop::LightUp(const BoardPlace& place) {
    const basPosit::BoardRect rect = RectOf(place);
    const double side = double(m_view.Board().width()) * double(m_view.Zoom());
    const QRectF lit(double(rect.x1) * side + basPosit::GetOffsetX(), double(rect.y1) * side + basPosit::GetOffsetY(),
                     double(rect.Width()) * side, double(rect.Height()) * side);
    m_light->setGeometry(lit.toAlignedRect());
    m_light->show();
}

void PictureDrop::Leave() { m_light->hide(); }

QStringList PictureDrop::FilesOf(const QMimeData& dropped) const {
    QStringList files;
    for (const QUrl& url : dropped.urls()) {
        if (url.isLocalFile()) files.append(url.toLocalFile());
    }
    const Picture picture = files.isEmpty() ? PictureIn(dropped) : Picture();
    if (picture.IsNull()) return files;
    QString drive, dir, base, ext, error;
    basCommon::FileNameFactor(m_session.GameName(), drive, dir, base, ext);
    const QString folder = basCommon::JoinPath(basCommon::GetMyGamesDirectory(), QStringLiteral("Pictures of ") + base);
    if (Files::MakeDirectory(folder, error)) {
        const QString path = FreePathIn(folder, QStringLiteral("Picture"), QStringLiteral("png"));
        if (SavePicture(picture, path, error)) return {path};
    }
    MsgBox(QStringLiteral("The picture couldn't be kept: ") + error, vbExclamation);
    return {};
}

// A picture on a disk that may go away is kept among the games, as the chooser does.
QString PictureDrop::Keep(const QString& sFile) const {
    const QString games = basCommon::GetMyGamesDirectory();
    if (BrowsePlaces::IsOnGamesDrive(sFile, games)) return sFile;
    QString drive, dir, base, ext, error;
    basCommon::FileNameFactor(sFile, drive, dir, base, ext);
    const QString copy = FreePathIn(games, base, ext);
    if (Files::Copy(sFile, copy, error)) return copy;
    basErrLog::ErrLogToFile(error, true);
    return sFile;
}

void PictureDrop::Drop(const QStringList& files, QPoint at) {
    Leave();
    const PictureOwner piece = PieceUnder(at);
    if (files.isEmpty() || !piece.IsPiece()) return;
    QStringList kept;
    for (const QString& file : files)
        kept.append(WhyNoPicture(file).isEmpty() ? Keep(file) : file);
    basPosit::PosSethDC(&m_session.MeasuringDevice());
    const DroppedPictures::Outcome outcome = DroppedPictures::Onto(m_session.InHand(), kept, piece, WhyNoPicture);
    if (outcome.edit) {
        m_session.Do(*outcome.edit);
        m_view.Redraw();
    }
    if (!outcome.sTold.isEmpty()) MsgBox(outcome.sTold, vbInformation);
}
