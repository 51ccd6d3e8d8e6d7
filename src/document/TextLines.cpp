// SPDX-License-Identifier: MIT
#include "document/TextLines.h"

#include "document/C_FontInfo.h"
#include "document/Subscript.h"
#include "drawing/basDraw.h"
#include "platform/text/NewLine.h"
#include "platform/text/Numbers.h"
#include "platform/text/TextColumns.h"
#include "services/basErrLog.h"

const QString TextLines::kUseExisting = QStringLiteral("UseExistingString");

const QString& TextLines::Line(int iLine) const { return m_sText[CheckedSubscript(iLine, kMaxLines)]; }

void TextLines::SetLine(int iLine, const QString& sText) { m_sText[CheckedSubscript(iLine, kMaxLines)] = sText; }

QString TextLines::All() const { return InUse().join(kNewLine); }

void TextLines::SetAll(const QString& sText) {
    const QStringList pieces = sText.split(kNewLine);
    for (int i = 0; i < pieces.size(); ++i)
        SetLine(i, pieces[i]);
    NLines = qint16(pieces.size());
}

QStringList TextLines::InUse() const {
    QStringList lines;
    for (int i = 0; i < NLines; ++i)
        lines.append(Line(i));
    return lines;
}

void TextLines::Split(const QString& sText) {
    if (sText == kUseExisting) return;
    NLines = 0;
    qsizetype from = 0;
    qsizetype end = sText.indexOf(kNewLine);
    while (end >= 0 && NLines < kMaxLines - 1) {
        SetLine(NLines++, sText.mid(from, end - from));
        from = end + kNewLine.size();
        end = sText.indexOf(kNewLine, from);
    }
    // Only the last line is ever cut; the others go in at any length.
    const QString last = end < 0 ? sText.mid(from) : sText.mid(from, end - from);
    SetLine(NLines++, TextColumns::LeftCharacters(last, kMaxLastLine));
    for (int i = NLines; i < kMaxLines; ++i)
        m_sText[size_t(i)].clear();
}

int FitTextLine(const QStringList& lines, const C_FontInfo& font, TextBox box) {
    int lLine = lines.isEmpty() ? box.lHeight : box.lHeight / int(lines.size());
    basDraw::Draw_SetFont(font.Family, lLine, CLng(lLine * 0.5), 0, 0, font.Bold, font.Italic, false);
    int widest = 0;
    for (const QString& line : lines)
        widest = std::max(widest, basDraw::Draw_GetWidth(line));
    if (widest > box.lWidth) lLine = Int(double(box.lWidth) * lLine / widest);
    basDraw::Draw_ReleaseObjects();
    return std::max(lLine, 1);
}
