// SPDX-License-Identifier: MIT
#include "document/SpecialText.h"

#include "document/Subscript.h"
#include "platform/text/NewLine.h"

namespace {

size_t Slot(int iNumber) { return CheckedSubscript(iNumber - Titles::kFirst, Titles::kLast - Titles::kFirst + 1); }

} // namespace

QStringList SpecialText::Lines() const {
    QStringList lines;
    for (int i = 0; i < iNLines; ++i)
        lines.append(sLine[CheckedSubscript(i, kMaxLines)]);
    return lines;
}

void SpecialText::SetText(const QString& sNewText) {
    sText = sNewText;
    sLine.fill(QString());
    iNLines = 0;
    QString rest = sText;
    qsizetype end = rest.indexOf(kNewLine);
    while (end >= 0 && iNLines < kMaxLines - 1) {
        sLine[size_t(iNLines++)] = rest.left(end);
        rest.remove(0, end + kNewLine.size());
        end = rest.indexOf(kNewLine);
    }
    sLine[size_t(iNLines++)] = rest;
}

SpecialText& Titles::Text(int iNumber) { return m_texts[Slot(iNumber)]; }
const SpecialText& Titles::Text(int iNumber) const { return m_texts[Slot(iNumber)]; }
