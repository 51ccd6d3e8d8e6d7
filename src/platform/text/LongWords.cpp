// SPDX-License-Identifier: MIT
#include "platform/text/LongWords.h"

#include <QTextBoundaryFinder>

QString LongWords::MayBreak(const QString& sText, qsizetype most) {
    constexpr QChar kBreak(0x200B);
    QString broken;
    broken.reserve(sText.size());
    QTextBoundaryFinder letters(QTextBoundaryFinder::Grapheme, sText);
    qsizetype from = 0;
    qsizetype inWord = 0;
    for (qsizetype to = letters.toNextBoundary(); to > 0; from = to, to = letters.toNextBoundary()) {
        inWord = sText[from].isSpace() ? 0 : inWord + 1;
        if (inWord > most) {
            broken += kBreak;
            inWord = 1;
        }
        broken += QStringView(sText).mid(from, to - from);
    }
    return broken;
}
