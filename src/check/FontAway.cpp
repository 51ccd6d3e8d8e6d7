// SPDX-License-Identifier: MIT
#include "check/Checks.h"
#include "platform/paint/FontFace.h"

#include <algorithm>

namespace {

// What games are written in unless somebody chooses. Where they are away, what stands in for them has their measures,
// and nobody sees a difference.
bool IsUsual(const QString& sFamily) {
    return sFamily.isEmpty() || sFamily.compare(QStringLiteral("Arial"), Qt::CaseInsensitive) == 0 ||
           sFamily.compare(QStringLiteral("Times New Roman"), Qt::CaseInsensitive) == 0;
}

struct Away {
    QString sFamily;
    QString sStandIn;
    GamePiece first;
    QStringList sheets;
};

QString TextOf(const Away& font) {
    return QStringLiteral("The font %1 isn't on this computer; %2 stands in for it, here and wherever else it is used.")
        .arg(font.sFamily, font.sStandIn);
}

/// Fonts that are away, in the order in which they are met.
class AwayFonts {
public:
    void Look(const PaperText& text, const WrittenText& line) {
        if (IsUsual(line.sFamily)) return;
        const auto known = std::ranges::find(m_away, line.sFamily, &Away::sFamily);
        if (known != m_away.end()) {
            known->sheets += text.sheets;
            return;
        }
        const QString standIn = FontFace::Get(line.sFamily, line.bBold, line.bItalic).FamilyInUse();
        if (standIn.compare(line.sFamily, Qt::CaseInsensitive) == 0) return;
        m_away.push_back({line.sFamily, standIn, text.piece, text.sheets});
    }
    const std::vector<Away>& List() const { return m_away; }

private:
    std::vector<Away> m_away;
};

// Gives a record the font that stands in, which is what shows already.
struct Replacing {
    QString sFamily;
    QString sStandIn;

    bool Replace(C_FontInfo& font) const {
        if (font.Family != sFamily) return false;
        font.Family = sStandIn;
        return true;
    }
    void InSpacesAndCorners(Game& game) const {
        constexpr int kBlock = 0;
        for (C_Space& space : game.spaces) {
            if (Replace(space.Font)) space.SetText(TextLines::kUseExisting);
        }
        for (C_Corner& corner : game.corners) {
            if (Replace(corner.Font)) corner.SetText(kBlock, TextLines::kUseExisting);
        }
    }
    void InCardsAndTokens(Game& game) const {
        for (auto& deck : game.news) {
            for (C_News& card : deck) {
                Replace(card.FontBody);
                Replace(card.FontHead);
            }
        }
        for (C_Token& token : game.tokens) {
            if (Replace(token.Font)) token.SetText(TextLines::kUseExisting);
        }
    }
};

} // namespace

template <>
void RunCheck<class FontAway>(const CheckedGame& game, Findings& findings) {
    AwayFonts fonts;
    for (const PaperText& text : game.Texts()) {
        for (const WrittenText& line : text.written)
            fonts.Look(text, line);
    }
    for (const Away& font : fonts.List()) {
        QStringList& sheets =
            findings.Add(font.first, TextOf(font), QStringLiteral("Choose another font with Change Font.")).sheets;
        sheets = font.sheets;
        sheets.removeDuplicates();
    }
}

template <>
std::optional<Edit> MendFinding<class FontAway>(const Game& game, const Finding& finding, const QString&) {
    AwayFonts fonts;
    for (const PaperText& text : PaperTextsOf(game, finding.piece)) {
        for (const WrittenText& line : text.written)
            fonts.Look(text, line);
    }
    const auto& list = fonts.List();
    const auto meant = std::ranges::find_if(list, [&](const Away& away) { return finding.sText == TextOf(away); });
    if (meant == list.end()) return std::nullopt;
    const Replacing replacing{meant->sFamily, meant->sStandIn};
    Edit edit{QStringLiteral("Font ") + meant->sStandIn, game};
    replacing.InSpacesAndCorners(edit.after);
    replacing.InCardsAndTokens(edit.after);
    return edit;
}
