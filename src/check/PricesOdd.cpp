// SPDX-License-Identifier: MIT
#include "board/basPositRents.h"
#include "check/Checks.h"

#include <algorithm>

using basPosit::RentRecord;

namespace {

const QString kAdvice = QStringLiteral("Prices and rents lie in the file Rents of the kit, beside the program.");

void Tell(Findings& findings, int iSpace, const QString& sText) {
    findings.Add(GamePiece::Space(iSpace), sText, kAdvice).sheets = PieceSheets::OfDeed(iSpace);
}

// What there is of single, two, one storey and two storeys; utilities have no storeys.
bool Falls(const RentRecord& rent) {
    qint16 before = 0;
    for (const qint16 value : {rent.RentSingle, rent.RentTwo, rent.RentStory1, rent.RentStory2}) {
        if (value == 0) continue;
        if (value < before) return true;
        before = value;
    }
    return false;
}

void LookAtDeed(Findings& findings, int iSpace, const RentRecord& rent) {
    if (rent.Cost <= 0) return Tell(findings, iSpace, QStringLiteral("Its price is 0."));
    if (rent.RentSingle <= 0) Tell(findings, iSpace, QStringLiteral("It brings no rent."));
    if (Falls(rent)) Tell(findings, iSpace, QStringLiteral("Its rents fall where they should rise."));
    if (rent.Extra > rent.Cost) Tell(findings, iSpace, QStringLiteral("The bank lends more on it than it costs."));
}

// Of one group a dearer space never brings less.
void LookAtGroup(Findings& findings, int iSpace) {
    for (int other = 0; other < iSpace; ++other) {
        if (!BoardFacts::IsProperty(other)) continue;
        if (BoardFacts::kTable[size_t(other)].iGroup != BoardFacts::kTable[size_t(iSpace)].iGroup) continue;
        const RentRecord& a = basPosit::m_Rent(other);
        const RentRecord& b = basPosit::m_Rent(iSpace);
        if ((a.Cost < b.Cost && a.RentSingle > b.RentSingle) || (a.Cost > b.Cost && a.RentSingle < b.RentSingle))
            Tell(findings, iSpace,
                 QStringLiteral("The dearer space of its colour brings less rent than the cheaper one."));
    }
}

} // namespace

template <>
void RunCheck<class PricesOdd>(const CheckedGame&, Findings& findings) {
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (!BoardFacts::IsForSale(i)) continue;
        LookAtDeed(findings, i, basPosit::m_Rent(i));
        if (BoardFacts::IsProperty(i)) LookAtGroup(findings, i);
    }
}
