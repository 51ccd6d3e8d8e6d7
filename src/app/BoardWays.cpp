// SPDX-License-Identifier: MIT
#include "app/BoardWalk.h"
#include "check/GamePiece.h"
#include "check/GameWords.h"
#include "document/Game.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace BoardWays {
namespace {

std::vector<BoardPlace> AllPlaces() {
    std::vector<BoardPlace> places;
    for (int side = 0; side < basTAVL::kSides; ++side) {
        places.push_back(BoardPlace::Of(GamePiece::Corner(side)));
        for (int i = 0; i < basTAVL::kSpacesPerSide; ++i)
            places.push_back(BoardPlace::Of(GamePiece::Space(side * basTAVL::kSpacesPerSide + i)));
    }
    for (const GamePiece& piece :
         {GamePiece::Titles(), GamePiece::Token(0), GamePiece::Deck(0), GamePiece::Deck(1), GamePiece::Money(0)})
        places.push_back(BoardPlace::Of(piece));
    return places;
}

// How far a place is in a direction, what lies aside counting double; infinite for what isn't in it.
double DistanceTo(QPointF from, QPointF to, int iArrow) {
    const bool across = iArrow == Qt::Key_Left || iArrow == Qt::Key_Right;
    const bool back = iArrow == Qt::Key_Left || iArrow == Qt::Key_Up;
    const QPointF step = to - from;
    const double ahead = (across ? step.x() : step.y()) * (back ? -1 : 1);
    const double aside = std::abs(across ? step.y() : step.x());
    constexpr double kLeast = 0.01;
    // Places of a row have their middles a little higher or lower, and lie beside one another all the same.
    constexpr double kStillAhead = 3;
    return ahead < kLeast || aside > kStillAhead * ahead ? std::numeric_limits<double>::infinity() : ahead + 2 * aside;
}

// "$1,200" is hard to hear; what stands on a lotto space isn't a price.
QString SpokenPrice(const QString& sCost) {
    if (!sCost.startsWith(u'$')) return {};
    return QStringLiteral(", price %1 dollars").arg(QString(sCost.mid(1)).remove(u','));
}

QString SpokenSpace(int iSpace, const Game& game) {
    const C_Space& space = game.spaces.at(size_t(iSpace));
    const QString name = GameWords::Shortened(GameWords::OfSpace(game, iSpace));
    return QStringLiteral("%1, space %2 of %3%4")
        .arg(GameWords::IsBlank(name) ? QStringLiteral("No name yet") : name)
        .arg(iSpace + 1)
        .arg(basTAVL::kSpaces)
        .arg(SpokenPrice(space.Cost));
}

} // namespace

const std::vector<BoardPlace>& Places() {
    static const std::vector<BoardPlace> places = AllPlaces();
    return places;
}

std::optional<BoardPlace> Next(const BoardPlace& place, bool bBack) {
    const std::vector<BoardPlace>& places = Places();
    if (!place.IsSomething()) return bBack ? places.back() : places.front();
    const auto at = std::find(places.begin(), places.end(), place);
    if (at == places.end() || (bBack ? at == places.begin() : at == places.end() - 1)) return std::nullopt;
    return bBack ? *(at - 1) : *(at + 1);
}

std::optional<BoardPlace> Towards(const BoardPlace& place, int iArrow) {
    const QPointF from = place.Box().center();
    std::optional<BoardPlace> nearest;
    double least = std::numeric_limits<double>::infinity();
    for (const BoardPlace& other : Places()) {
        const double distance = DistanceTo(from, other.Box().center(), iArrow);
        if (distance >= least) continue;
        least = distance;
        nearest = other;
    }
    return nearest;
}

QString Spoken(const BoardPlace& place, const Game& game) {
    if (place.m_iOverSpace >= 0) return SpokenSpace(place.m_iOverSpace, game);
    if (place.m_iOverCorner >= 0)
        return QStringLiteral("%1, corner %2 of %3")
            .arg(GameWords::Shortened(GameWords::OfCorner(game, place.m_iOverCorner)))
            .arg(place.m_iOverCorner + 1)
            .arg(basTAVL::kCorners);
    if (place.m_bOverTitles)
        return QStringLiteral("%1, the game's titles").arg(GameWords::Shortened(GameWords::OfTitle(game, 1)));
    if (place.m_bOverGoodNews) return QStringLiteral("Good News, %1 cards").arg(basTAVL::kCards);
    if (place.m_bOverBadNews) return QStringLiteral("Bad News, %1 cards").arg(basTAVL::kCards);
    if (place.m_bOverMoney) return QStringLiteral("Money, %1 notes").arg(basTAVL::kMoney);
    if (place.m_bOverTokens) return QStringLiteral("Tokens, %1 of them").arg(basTAVL::kTokens);
    return {};
}

} // namespace BoardWays
