// SPDX-License-Identifier: MIT
#include "kit/PieceNames.h"

#include "document/basTAVL.h"

namespace PieceNames {
namespace {

QString Named(const QString& sText, const QString& sNamed, const QString& sNumbered, int iIndex) {
    const QString name = basTAVL::CRLF2Space(sText).simplified();
    return name.isEmpty() ? sNumbered.arg(iIndex + 1) : sNamed.arg(name);
}

} // namespace

QString Space(int iSpace) {
    return Named(basTAVL::g_oSpaces(iSpace).TextAll(), QStringLiteral("The space '%1'"), QStringLiteral("Space %1"),
                 iSpace);
}

QString Corner(int iCorner) {
    return Named(basTAVL::g_oCorners(iCorner).TextAll(0), QStringLiteral("The corner '%1'"),
                 QStringLiteral("Corner %1"), iCorner);
}

QString Token(int iToken) {
    return Named(basTAVL::g_oTokens(iToken).TextAll(), QStringLiteral("The token '%1'"), QStringLiteral("Token %1"),
                 iToken);
}

QString Note(int iMoney) {
    constexpr const char* kNotes[basTAVL::kMoney] = {"The $100 note", "The $500 note", "The $1,000 note",
                                                     "The $5,000 note"};
    return QString::fromLatin1(kNotes[iMoney]);
}

QString Deed(int iSpace) {
    return Named(basTAVL::g_oSpaces(iSpace).TextAll(), QStringLiteral("The deed of '%1'"),
                 QStringLiteral("The deed of space %1"), iSpace);
}

} // namespace PieceNames
