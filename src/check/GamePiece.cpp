// SPDX-License-Identifier: MIT
#include "check/GamePiece.h"

#include "check/GameWords.h"

namespace {

QString Quoted(const QString& sName) { return u'"' + sName + u'"'; }

QString Numbered(const char* sWhat, int iFromNought) {
    return QStringLiteral("%1 %2").arg(QLatin1String(sWhat)).arg(iFromNought + 1);
}

QString NameOrNumber(const QString& sName, const char* sWhat, int iFromNought) {
    return GameWords::IsBlank(sName) ? Numbered(sWhat, iFromNought)
                                     : QLatin1String(sWhat) + u' ' + Quoted(GameWords::Shortened(sName));
}

constexpr const char* kDecks[] = {"Good News", "Bad News"};
constexpr const char* kNotes[] = {"$100 note", "$500 note", "$1,000 note", "$5,000 note"};

} // namespace

QString GamePiece::Word() const {
    const QString number = u'-' + QString::number(iNumber);
    switch (kind) {
        case Kind::Titles:
            return QStringLiteral("titles");
        case Kind::Space:
            return QStringLiteral("space") + number;
        case Kind::Corner:
            return QStringLiteral("corner") + number;
        case Kind::Deck:
            return QStringLiteral("deck-") + QString::number(iDeck);
        case Kind::Card:
            return QStringLiteral("card-") + QString::number(iDeck) + number;
        case Kind::Money:
            return QStringLiteral("note") + number;
        case Kind::Token:
            return QStringLiteral("token") + number;
        default:
            return QStringLiteral("game");
    }
}

QString GamePiece::NameIn(const Game& game) const {
    switch (kind) {
        case Kind::Titles:
            return QStringLiteral("Title and subtitles");
        case Kind::Space:
            return NameOrNumber(GameWords::OfSpace(game, iNumber), "Space", iNumber);
        case Kind::Corner:
            return NameOrNumber(GameWords::OfCorner(game, iNumber), "Corner", iNumber);
        case Kind::Deck:
            return QStringLiteral("Title of the %1 cards").arg(QLatin1String(kDecks[iDeck]));
        case Kind::Card:
            return Numbered(iDeck == 0 ? "Good News card" : "Bad News card", iNumber);
        case Kind::Money:
            return QString::fromLatin1(kNotes[iNumber]);
        case Kind::Token:
            return NameOrNumber(GameWords::OfToken(game, iNumber), "Token", iNumber);
        default:
            return QStringLiteral("The whole game");
    }
}
