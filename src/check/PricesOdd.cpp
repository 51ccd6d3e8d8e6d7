// SPDX-License-Identifier: MIT
#include "board/basPositRents.h"
#include "check/Checks.h"

#include <algorithm>

using basPosit::RentRecord;

namespace {

const QString kAdvice = QStringLiteral("Prices and rents lie in the file Rents of the kit, beside the program.");

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
    const GamePiece piece = GamePiece::Space(iSpace);
    if (rent.Cost <= 0) {
        findings.Add(piece, QStringLiteral("Its price is 0."), kAdvice);
        return;
    }
    if (rent.RentSingle <= 0) findings.Add(piece, QStringLiteral("It brings no rent."), kAdvice);
    if (Falls(rent)) findings.Add(piece, QStringLiteral("Its rents fall where they should rise."), kAdvice);
    if (rent.Extra > rent.Cost)
        findings.Add(piece, QStringLiteral("The bank lends more on it than it costs."), kAdvice);
}

// Of one group a dearer space never brings less.
void LookAtGroup(Findings& findings, int iSpace) {
    for (int other = 0; other < iSpace; ++other) {
        if (!BoardFacts::IsProperty(other)) continue;
        if (BoardFacts::kTable[size_t(other)].iGroup != BoardFacts::kTable[size_t(iSpace)].iGroup) continue;
        const RentRecord& a = basPosit::m_Rent(other);
        const RentRecord& b = basPosit::m_Rent(iSpace);
        if ((a.Cost < b.Cost && a.RentSingle > b.RentSingle) || (a.Cost > b.Cost && a.RentSingle < b.RentSingle))
            findings.Add(GamePiece::Space(iSpace),
                         QStringLiteral("The dearer space of its colour brings less rent than the cheaper one."),
                         kAdvice);
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
