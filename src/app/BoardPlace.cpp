// SPDX-License-Identifier: MIT
#include "app/BoardPlace.h"

#include "board/basPosit.h"
#include "check/GamePiece.h"
#include "platform/text/Numbers.h"

#include <QPolygonF>

#include <array>

using namespace BoardFacts;

namespace {

// No blank behind it: on the board's tips the quoted names have always followed at once.
const QString kClickToEdit = QStringLiteral("Click to edit");
const QString kCrLf = QStringLiteral("\r\n");

constexpr std::array<const char*, kCorners> kCornerNames = {"Start", "Lose Turn", "Free Space", "Fate!"};

// The seven-by-seven grid between the corners.
bool OnGrid(int cell) { return cell >= 0 && cell < kSpacesPerSide; }

int CornerAt(int iCol, int iRow) {
    const bool left = iCol < 0;
    const bool top = iRow < 0;
    if (left) return top ? 2 : 1;
    return top ? 3 : 0;
}

int SpaceAt(float fX, float fY, int iCol, int iRow) {
    if (fY > kInnerHigh) return 6 - iCol;
    if (fX < kInnerLow) return 13 - iRow;
    if (fY < kInnerLow) return iCol + 14;
    if (fX > kInnerHigh) return iRow + 21;
    return -1;
}

bool Contains(int iBox, float fX, float fY) {
    const basPosit::BoardRect& box = basPosit::m_CenterRect(iBox);
    return fX >= box.x1 && fX <= box.x2 && fY >= box.y1 && fY <= box.y2;
}

void FindInCenter(float fX, float fY, BoardPlace& place) {
    bool* const items[] = {&place.m_bOverTitles,  &place.m_bOverTitles, &place.m_bOverGoodNews,
                           &place.m_bOverBadNews, &place.m_bOverMoney,  &place.m_bOverTokens};
    for (int i = 0; i < int(std::size(items)); ++i) {
        if (!Contains(i + 1, fX, fY)) continue;
        *items[i] = true;
        return;
    }
}

QString InSingleQuotes(const QString& sText) { return u'\'' + sText + u'\''; }
QString InDoubleQuotes(const QString& sText) { return u'"' + sText + u'"'; }

QString SpaceName(int iSpace) { return basPosit::m_Rent(iSpace).DefaultName; }
QString CornerName(int iCorner) { return QString::fromLatin1(kCornerNames.at(size_t(iCorner))); }

struct CenterWords {
    bool BoardPlace::*over;
    const char* tip;
    const char* box;
};
constexpr CenterWords kCenterWords[] = {
    {&BoardPlace::m_bOverTitles, " Titles", "Titles"},
    {&BoardPlace::m_bOverGoodNews, " 'Good News'", "Good News"},
    {&BoardPlace::m_bOverBadNews, " 'Bad News'", "Bad News"},
    {&BoardPlace::m_bOverMoney, " Money", "Money"},
    {&BoardPlace::m_bOverTokens, " Tokens", "Tokens"},
};

} // namespace

BoardPlace BoardPlace::Of(const GamePiece& piece) {
    BoardPlace place;
    switch (piece.kind) {
        case GamePiece::Kind::Titles:
            place.m_bOverTitles = true;
            break;
        case GamePiece::Kind::Space:
            place.m_iOverSpace = piece.iNumber;
            break;
        case GamePiece::Kind::Corner:
            place.m_iOverCorner = piece.iNumber;
            break;
        case GamePiece::Kind::Deck:
        case GamePiece::Kind::Card:
            (piece.iDeck == 0 ? place.m_bOverGoodNews : place.m_bOverBadNews) = true;
            break;
        case GamePiece::Kind::Money:
            place.m_bOverMoney = true;
            break;
        case GamePiece::Kind::Token:
            place.m_bOverTokens = true;
            break;
        case GamePiece::Kind::Game:
            break;
    }
    return place;
}

QRectF BoardPlace::Box() const {
    const auto boxOf = [](const basPosit::BoardRect& rect) {
        return QRectF(QPointF(double(rect.x1), double(rect.y1)), QPointF(double(rect.x2), double(rect.y2)))
            .normalized();
    };
    if (m_iOverSpace >= 0) return boxOf(basPosit::m_SpaceRect(m_iOverSpace, basPosit::SpacePart::Whole));
    if (m_iOverCorner >= 0) {
        QPolygonF outline;
        for (const basPosit::BoardPoint& point : basPosit::m_CornerPoly(m_iOverCorner))
            outline.append(QPointF(double(point.x), double(point.y)));
        return outline.boundingRect();
    }
    if (m_bOverTitles) return boxOf(basPosit::m_CenterRect(basPosit::kTitleBox));
    if (m_bOverGoodNews) return boxOf(basPosit::m_CenterRect(basPosit::kGoodNewsBox));
    if (m_bOverBadNews) return boxOf(basPosit::m_CenterRect(basPosit::kBadNewsBox));
    if (m_bOverMoney) return boxOf(basPosit::m_CenterRect(basPosit::kMoneyBox));
    if (m_bOverTokens) return boxOf(basPosit::m_CenterRect(basPosit::kTokensBox));
    return {};
}

bool BoardPlace::IsEditable() const { return IsSomething() && WhyNotEditable(*this).isEmpty(); }

BoardPlace PlaceAt(float fX, float fY) {
    BoardPlace place;
    const int iCol = Int(double((fX - kNearEndLow) / kPitch));
    const int iRow = Int(double((fY - kNearEndLow) / kPitch));
    if (!OnGrid(iCol) && !OnGrid(iRow)) {
        place.m_iOverCorner = CornerAt(iCol, iRow);
        return place;
    }
    place.m_iOverSpace = SpaceAt(fX, fY, iCol, iRow);
    if (place.m_iOverSpace < 0) FindInCenter(fX, fY, place);
    return place;
}

QString WhyNotEditable(const BoardPlace& place) {
    if (IsLotto(place.m_iOverSpace)) return QStringLiteral("The 'Lottery' spaces cannot be edited.");
    if (IsNews(place.m_iOverSpace)) return QStringLiteral("The 'News' spaces cannot be edited.");
    if (place.m_iOverCorner == kFateCorner) return QStringLiteral("The 'FATE!' space cannot be edited.");
    return QString();
}

QString BoardTipOf(const BoardPlace& place) {
    const QString cannot = QStringLiteral(" cannot be edited");
    if (IsLotto(place.m_iOverSpace)) return QStringLiteral("'Lottery'") + cannot;
    if (IsNews(place.m_iOverSpace)) return QStringLiteral("'News'") + cannot;
    if (place.m_iOverSpace >= 0) return kClickToEdit + InDoubleQuotes(SpaceName(place.m_iOverSpace));
    if (place.m_iOverCorner == kFateCorner) return InSingleQuotes(CornerName(kFateCorner)) + cannot;
    if (place.m_iOverCorner >= 0) return kClickToEdit + InSingleQuotes(CornerName(place.m_iOverCorner));
    for (const CenterWords& words : kCenterWords) {
        if (place.*words.over) return kClickToEdit + QString::fromLatin1(words.tip);
    }
    return QString();
}

QString TipBoxTextOf(const BoardPlace& place) {
    if (IsLotto(place.m_iOverSpace) || IsNews(place.m_iOverSpace)) return QString();
    const QString head = kClickToEdit + kCrLf;
    if (place.m_iOverSpace >= 0) return head + InSingleQuotes(SpaceName(place.m_iOverSpace));
    if (place.m_iOverCorner >= 0) return head + InDoubleQuotes(CornerName(place.m_iOverCorner));
    for (const CenterWords& words : kCenterWords) {
        if (place.*words.over) return head + QString::fromLatin1(words.box);
    }
    return QString();
}

QPoint TipBoxPosition(const BoardPlace& place, float X, float Y, QSize boxSize, QSize boardSize) {
    constexpr int kRightOfMouse = 120;
    constexpr int kBelowMouse = 420;
    constexpr int kBottomSideMargin = 240;
    constexpr int kFirstOfRightSide = 3 * kSpacesPerSide;
    QPoint at(CLng(double(X)) + kRightOfMouse, CLng(double(Y)) + kBelowMouse);
    if (place.m_iOverSpace >= kFirstOfRightSide || place.m_iOverCorner == 0)
        at.setX(std::min(CLng(double(X)), boardSize.width()) - boxSize.width());
    if (place.m_iOverSpace >= 0 && place.m_iOverSpace < kSpacesPerSide) at.setY(boardSize.height() - kBottomSideMargin);
    return at;
}
