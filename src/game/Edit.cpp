// SPDX-License-Identifier: MIT
#include "game/Edit.h"

#include "board/basTAVL_news.h"
#include "document/basTAVL.h"
#include "document/Subscript.h"
#include "services/BoardFacts.h"

#include <QStringList>

namespace Edits {
namespace {

constexpr const char* kTitleNames[] = {"Game Name", "Subtitle", "Second Subtitle"};
const QString kSetAllFonts = QStringLiteral("Set All Fonts");
constexpr int kNoteValues[basTAVL::kMoney] = {100, 500, 1000, 5000};

// The words for what differs, in the order of the eye.
class Differences {
public:
    void Note(bool bDiffer, const char* sWord) {
        if (bDiffer) m_words.append(QString::fromLatin1(sWord));
    }
    void NotePicture(const C_Image& one, const C_Image& other) {
        const bool otherPicture = one.FullPath() != other.FullPath();
        Note(otherPicture, "Picture");
        Note(!otherPicture && one.IsDifferentFrom(other), "Crop");
    }
    QString NameOf(const QString& sPiece) const {
        if (m_words.size() == 1) return m_words.first() + QStringLiteral(" of ") + sPiece;
        return QStringLiteral("Changes to ") + sPiece;
    }

private:
    QStringList m_words;
};

bool HaveOtherFonts(const C_News& one, const C_News& other) {
    return one.FontBody.IsDifferentFrom(other.FontBody) || one.FontHead.IsDifferentFrom(other.FontHead);
}

void TakeFonts(std::array<C_News, basTAVL::kCards>& deck, const C_News& from) {
    for (C_News& card : deck) {
        card.FontBody.LoadFromObject(from.FontBody);
        card.FontHead.LoadFromObject(from.FontHead);
    }
}

QString NameOfNote(size_t slot, const C_Money& before, const C_Money& after) {
    Differences differences;
    differences.Note(before.Text(0) != after.Text(0) || before.Text(1) != after.Text(1), "Text");
    differences.NotePicture(before.FaceImage, after.FaceImage);
    return differences.NameOf(QStringLiteral("Note ") + QString::number(kNoteValues[slot]));
}

} // namespace

Edit OfSpace(const Game& before, int iSpace, const C_Space& space) {
    const size_t slot = CheckedSubscript(iSpace, basTAVL::kSpaces);
    const C_Space& old = before.spaces[slot];
    Differences differences;
    differences.Note(old.TextAll() != space.TextAll(), "Name");
    differences.Note(old.Font.IsDifferentFrom(space.Font), "Font");
    differences.NotePicture(old.Image, space.Image);
    Edit edit{differences.NameOf(basTAVL::CRLF2Space(space.TextAll())), before};
    edit.after.spaces[slot] = space;
    return edit;
}

Edit OfCorner(const Game& before, int iCorner, const C_Corner& corner) {
    constexpr int kBlock = 0;
    const size_t slot = CheckedSubscript(iCorner, basTAVL::kCorners);
    const C_Corner& old = before.corners[slot];
    Differences differences;
    differences.Note(old.TextAll(kBlock) != corner.TextAll(kBlock), "Name");
    differences.Note(old.Font.IsDifferentFrom(corner.Font), "Font");
    differences.NotePicture(old.Image, corner.Image);
    Edit edit{differences.NameOf(basTAVL::CRLF2Space(corner.TextAll(kBlock))), before};
    edit.after.corners[slot] = corner;
    return edit;
}

Edit OfTitles(const Game& before, const Titles& titles) {
    QStringList names;
    for (int i = 1; i <= int(std::size(kTitleNames)); ++i) {
        if (before.titles.Text(i) != titles.Text(i)) names.append(QString::fromLatin1(kTitleNames[i - 1]));
    }
    Edit edit{names.size() == 1 ? names.first() : QStringLiteral("Titles"), before};
    edit.after.titles = titles;
    return edit;
}

Edit OfCard(const Game& before, int iGoodOrBad, int iCard, const C_News& card, const SpecialText& head) {
    const size_t set = CheckedSubscript(iGoodOrBad, basTAVL::kNewsSets);
    const size_t slot = CheckedSubscript(iCard, basTAVL::kCards);
    const int record = basTAVL::NewsTitleRecord(iGoodOrBad);
    const C_News& old = before.news[set][slot];
    const bool otherText = old.Text() != card.Text();
    const bool otherHead = before.titles.Text(record) != head;
    const bool otherFonts = HaveOtherFonts(old, card);
    QString piece = basTAVL::NewsDeckName(iGoodOrBad);
    if (otherText && !otherHead && !otherFonts) piece += QStringLiteral(" Card ") + QString::number(iCard + 1);
    Differences differences;
    differences.Note(otherText, "Text");
    differences.Note(otherHead, "Title");
    differences.Note(otherFonts, "Fonts");
    Edit edit{differences.NameOf(piece), before};
    auto& deck = edit.after.news[set];
    deck[slot] = card;
    if (otherFonts) TakeFonts(deck, card);
    edit.after.titles.Text(record) = head;
    return edit;
}

Edit OfMoney(const Game& before, const std::array<C_Money, basTAVL::kMoney>& money) {
    QStringList names;
    for (size_t i = 0; i < money.size(); ++i) {
        if (money[i].IsDifferentFrom(before.money[i])) names.append(NameOfNote(i, before.money[i], money[i]));
    }
    Edit edit{names.size() == 1 ? names.first() : QStringLiteral("Money"), before};
    edit.after.money = money;
    return edit;
}

Edit OfToken(const Game& before, int iToken, const C_Token& token) {
    const size_t slot = CheckedSubscript(iToken, basTAVL::kTokens);
    const C_Token& old = before.tokens[slot];
    Differences differences;
    // A token that gets a picture loses its text by it, and the other way round.
    const bool otherPicture = old.Image.FullPath() != token.Image.FullPath();
    differences.Note(old.TextAll() != token.TextAll() && !(otherPicture && !token.Image.FullPath().isEmpty()), "Text");
    differences.Note(old.Font.IsDifferentFrom(token.Font), "Font");
    if (!otherPicture || !token.Image.FullPath().isEmpty()) differences.NotePicture(old.Image, token.Image);
    Edit edit{differences.NameOf(QStringLiteral("Token ") + QString::number(iToken + 1)), before};
    edit.after.tokens[slot] = token;
    return edit;
}

Edit OfBoardFont(const Game& before, const C_FontInfo& font, int iSpace, int iCorner) {
    constexpr int kBlock = 0;
    Edit edit{kSetAllFonts, before};
    for (int i = 0; i < basTAVL::kSpaces; ++i) {
        if (i == iSpace) continue;
        C_Space& space = edit.after.spaces[size_t(i)];
        space.Font.LoadFromObject(font);
        space.SetText(TextLines::kUseExisting);
    }
    for (int i = 0; i < basTAVL::kCorners; ++i) {
        if (i == iCorner || i == BoardFacts::kFateCorner) continue;
        C_Corner& corner = edit.after.corners[size_t(i)];
        corner.Font.LoadFromObject(font);
        corner.SetText(kBlock, TextLines::kUseExisting);
    }
    return edit;
}

Edit OfNewsFonts(const Game& before, const C_News& card) {
    Edit edit{kSetAllFonts, before};
    for (auto& deck : edit.after.news)
        TakeFonts(deck, card);
    return edit;
}

Edit OfTokenFont(const Game& before, const C_FontInfo& font) {
    Edit edit{kSetAllFonts, before};
    for (C_Token& token : edit.after.tokens) {
        token.Font.LoadFromObject(font);
        token.SetText(TextLines::kUseExisting);
    }
    return edit;
}

} // namespace Edits
