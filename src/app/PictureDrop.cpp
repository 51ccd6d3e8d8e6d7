// SPDX-License-Identifier: MIT
#include "app/PictureDrop.h"

#include "app/BoardView.h"
#include "board/basPosit.h"
#include "game/DroppedPictures.h"
#include "game/Session.h"
#include "platform/paint/Units.h"
#include "windowing/PictureBox.h"
#include "windows/pictures/DroppedFiles.h"

#include <QRubberBand>

#include <algorithm>

namespace {

using Kind = PictureOwner::Kind;

template <typename Records, typename Image>
PictureOwner FirstFree(Kind kind, const Records& records, Image image) {
    const auto free = std::find_if(records.begin(), records.end(),
                                   [&](const auto& record) { return image(record).FullPath().isEmpty(); });
    return {kind, free == records.end() ? DroppedPictures::kNoneFree : qint16(free - records.begin())};
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

} // namespace

PictureOwner PieceForPicture(const BoardPlace& place, const Game& game) {
    PictureOwner piece;
    if (place.m_iOverSpace >= 0) piece = {Kind::Space, qint16(place.m_iOverSpace)};
    if (place.m_iOverCorner >= 0) piece = {Kind::Corner, qint16(place.m_iOverCorner)};
    if (place.m_bOverMoney)
        piece =
            FirstFree(Kind::Money, game.money, [](const C_Money& note) -> const C_Image& { return note.FaceImage; });
    if (place.m_bOverTokens)
        piece = FirstFree(Kind::Token, game.tokens, [](const C_Token& token) -> const C_Image& { return token.Image; });
    return piece.iNumber == DroppedPictures::kNoneFree || DroppedPictures::Takes(piece) ? piece : PictureOwner();
}

PictureDrop::PictureDrop(BoardView& view, Session& session)
    : m_view(view), m_session(session), m_light(new QRubberBand(QRubberBand::Rectangle, &view.Board())) {
    m_light->setObjectName(QStringLiteral("shpDrop"));
}

PictureOwner PictureDrop::PieceUnder(QPoint at) {
    m_view.WhatIsMouseOver(float(at.x() * kTwipsPerPixel), float(at.y() * kTwipsPerPixel));
    return PieceForPicture(m_view.Over(), m_session.InHand());
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

void PictureDrop::Drop(const QStringList& files, QPoint at) {
    Leave();
    const PictureOwner piece = PieceUnder(at);
    if (piece.IsPiece() && DroppedFiles::LayOnto(m_session, files, piece)) m_view.Redraw();
}
