// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "platform/paint/FontFace.h"

#include <QSet>

namespace {

// What games are written in unless somebody chooses. Where they are away, what stands in for them has their measures,
// and nobody sees a difference.
bool IsUsual(const QString& sFamily) {
    return sFamily.isEmpty() || sFamily.compare(QStringLiteral("Arial"), Qt::CaseInsensitive) == 0 ||
           sFamily.compare(QStringLiteral("Times New Roman"), Qt::CaseInsensitive) == 0;
}

} // namespace

template <>
void RunCheck<class FontAway>(const CheckedGame& game, Findings& findings) {
    QSet<QString> told;
    for (const PaperText& text : game.Texts()) {
        for (const WrittenText& line : text.written) {
            if (IsUsual(line.sFamily) || told.contains(line.sFamily)) continue;
            told.insert(line.sFamily);
            const QString standIn = FontFace::Get(line.sFamily, line.bBold, line.bItalic).FamilyInUse();
            if (standIn.compare(line.sFamily, Qt::CaseInsensitive) == 0) continue;
            findings.Add(text.piece,
                         QStringLiteral("The font %1 isn't on this computer; %2 stands in for it, here and wherever "
                                        "else it is used.")
                             .arg(line.sFamily, standIn),
                         QStringLiteral("Choose another font with Change Font."));
        }
    }
}
