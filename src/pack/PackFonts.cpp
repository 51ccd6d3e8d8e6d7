// SPDX-License-Identifier: MIT
#include "pack/PackFonts.h"

#include "document/GameText.h"
#include "pack/PackNames.h"
#include "platform/paint/FontFiles.h"
#include "services/RecordText.h"

#include <algorithm>
#include <array>

namespace PackFonts {
namespace {

using Standing = Use::Standing;

// Their letters are as wide as those of fonts that come with the program.
constexpr std::array kEverywhere = {"Arial", "Times New Roman"};

// Lines that name fonts: how many fields stand ahead of a family, and how many families there are. The style and the
// size come behind each.
struct Series {
    int iFirstLine;
    int iCount;
    int iFieldsAhead;
    int iFamilies;
};
constexpr Series kSeries[] = {{GameLines::kSpaces, basTAVL::kSpaces, 6, 1},
                              {GameLines::kCorners, basTAVL::kCorners, 7, 1},
                              {GameLines::kNews, basTAVL::kNewsSets* basTAVL::kCards, 2, 2},
                              {GameLines::kTokens, basTAVL::kTokens, 6, 1}};

bool IsEverywhere(const QString& sFamily) {
    return std::any_of(kEverywhere.begin(), kEverywhere.end(), [&sFamily](const char* family) {
        return sFamily.compare(QLatin1String(family), Qt::CaseInsensitive) == 0;
    });
}

void TakeFamilies(QString line, const Series& series, QStringList& families) {
    for (int i = 0; i < series.iFieldsAhead; ++i)
        basTAVL::GetQuotedField(line);
    for (int i = 0; i < series.iFamilies; ++i) {
        const QString family = basTAVL::GetQuotedField(line).simplified();
        if (!family.isEmpty() && !IsEverywhere(family) && !families.contains(family, Qt::CaseInsensitive))
            families.append(family);
        basTAVL::GetQuotedField(line);
        basTAVL::GetQuotedField(line);
    }
}

Use UseOf(const QString& sFamily, const QList<FontFiles::File>& files, QSet<QString>& taken) {
    Use use{sFamily, FontFiles::IsKnown(sFamily) ? Standing::StaysBehind : Standing::NotHere, {}};
    const bool free = std::all_of(files.begin(), files.end(), [](const auto& file) { return file.bMayBePassedOn; });
    if (files.isEmpty() || !free) return use;
    use.standing = Standing::GoesAlong;
    for (const FontFiles::File& file : files)
        use.files.append({file.sPath, PackNames::EntryFor(PackNames::kFonts, file.sPath, taken), file.size});
    return use;
}

QString Words(Standing standing) {
    switch (standing) {
        case Standing::GoesAlong:
            return QStringLiteral("comes with the game");
        case Standing::StaysBehind:
            return QStringLiteral("doesn't come with the game, as it may not be passed on; install it to see the game "
                                  "as it was made");
        case Standing::NotHere:
            break;
    }
    return QStringLiteral("wasn't there when the game was packed");
}

} // namespace

QStringList FamiliesOf(const QStringList& lines) {
    QStringList families;
    for (const Series& series : kSeries) {
        for (int i = 0; i < series.iCount && series.iFirstLine + i < lines.size(); ++i)
            TakeFamilies(lines.at(series.iFirstLine + i), series, families);
    }
    return families;
}

QList<Use> UsesOf(const QStringList& families, QSet<QString>& taken) {
    const QHash<QString, QList<FontFiles::File>> files = FontFiles::Of(families);
    QList<Use> uses;
    for (const QString& family : families)
        uses.append(UseOf(family, files.value(family), taken));
    return uses;
}

QByteArray ListOf(const QList<Use>& uses) {
    QByteArray list;
    for (const Use& use : uses)
        list += QStringLiteral("%1: %2.\r\n").arg(use.sFamily, Words(use.standing)).toUtf8();
    return list;
}

} // namespace PackFonts
