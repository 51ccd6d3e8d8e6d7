// SPDX-License-Identifier: MIT
#include "pack/GamePictures.h"

#include "document/GameText.h"
#include "services/RecordText.h"

namespace GamePictures {
namespace {

using Kind = PictureOwner::Kind;

// Lines that hold pictures: whose, and how many fields stand ahead of the picture.
struct Series {
    Kind kind;
    int iFirstLine;
    int iCount;
    int iFieldsAhead;
};
constexpr Series kSeries[] = {{Kind::Space, GameLines::kSpaces, basTAVL::kSpaces, 2},
                              {Kind::Corner, GameLines::kCorners, basTAVL::kCorners, 3},
                              {Kind::Money, GameLines::kMoney, basTAVL::kMoney, 3},
                              {Kind::Token, GameLines::kTokens, basTAVL::kTokens, 2}};

/// A line, taken apart at its picture. Reading a field only shortens the line at its front.
struct Parts {
    QString sAhead;
    PictureRef ref;
    QString sBehind;

    Parts(const QString& sLine, int iFieldsAhead) : sBehind(sLine.trimmed()) {
        const QString line = sBehind;
        for (int i = 0; i < iFieldsAhead; ++i)
            basTAVL::GetQuotedField(sBehind);
        sAhead = line.chopped(sBehind.size());
        ref.sPath = basTAVL::GetQuotedField(sBehind);
        ref.iXCenter = basTAVL::IntegerOrZero(basTAVL::GetQuotedField(sBehind));
        ref.iYCenter = basTAVL::IntegerOrZero(basTAVL::GetQuotedField(sBehind));
        ref.iZoom = basTAVL::IntegerOrZero(basTAVL::GetQuotedField(sBehind));
    }
};

int FieldsAheadOf(Kind kind) {
    for (const Series& series : kSeries) {
        if (series.kind == kind) return series.iFieldsAhead;
    }
    return 0;
}

} // namespace

QList<Named> Of(const QStringList& lines) {
    QList<Named> found;
    for (const Series& series : kSeries) {
        for (int i = 0; i < series.iCount && series.iFirstLine + i < lines.size(); ++i) {
            const int line = series.iFirstLine + i;
            const Parts parts(lines.at(line), series.iFieldsAhead);
            if (parts.ref.sPath.trimmed().isEmpty()) continue;
            found.append({line, {series.kind, qint16(i)}, parts.ref});
        }
    }
    return found;
}

void Put(QStringList& lines, const Named& named) {
    QString& line = lines[named.iLine];
    const Parts parts(line, FieldsAheadOf(named.owner.kind));
    line = parts.sAhead + basTAVL::Quote(named.ref.sPath) + u',' + QString::number(named.ref.iXCenter) + u',' +
           QString::number(named.ref.iYCenter) + u',' + QString::number(named.ref.iZoom);
    if (!parts.sBehind.isEmpty()) line += QStringLiteral(", ") + parts.sBehind;
}

void PutGameName(QStringList& lines, const QString& sName) {
    if (lines.isEmpty()) return;
    QString rest = lines.first().trimmed();
    const QString line = rest;
    basTAVL::GetQuotedField(rest);
    basTAVL::GetQuotedField(rest);
    lines.first() = line.chopped(rest.size()) + sName;
}

} // namespace GamePictures
