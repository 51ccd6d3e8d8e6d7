// SPDX-License-Identifier: MIT
#include "board/basPositPaint.h"

#include "board/basPosit.h"
#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

#include <array>

using namespace basDraw;

namespace basPosit {
namespace {

// Letters are a little lower than the line height that the text was fitted with, which leaves a gap
// between the lines of the fit; the block is centred by the line height itself.
constexpr double kLetterShare = 0.95;
// A font of height 0 is one of the desktop's choice, many times as high as what a small board has room for.
constexpr int kSmallestLetter = 1;

// From a space's inner edge: where the text's part of the depth starts, and how deep it is. A picture takes
// the inner half.
struct TextDepth {
    float start;
    float depth;
};
constexpr TextDepth kWithoutImage{0.017F, 0.1186F};
constexpr TextDepth kWithImage{0.0763F, 0.0593F};

constexpr int kCornerEscapement[kCornersOnBoard] = {450, 3150, 2250, 1350};

// The lotto panel, in fractions of the board's width.
struct LottoPlace {
    BoardPoint start;
    int iEscapement;
    /// Along x, from the inner edge outward.
    int iDirection;
};
constexpr std::array<LottoPlace, BoardFacts::kLottoSpaces.size()> kLotto = {{
    {{0.14138F, 0.46156F}, 2700, -1},
    {{0.85862F, 0.53824F}, 900, 1},
}};
struct LottoFont {
    float fHeight;
    float fWidth;
    bool bBold;
};
constexpr LottoFont kLottoHead{0.012F, 0.004F, true};
constexpr LottoFont kLottoBody{0.009F, 0.0029F, false};
constexpr LottoFont kLottoTable{0.008F, 0.0035F, true};
constexpr const char* kLottoRule[] = {"You have one chance to", "roll the same number you", "just rolled to win..."};
struct LottoPay {
    const char* sRoll;
    const char* sPay;
};
// Two rows pay the same on purpose.
constexpr LottoPay kLottoPay[] = {
    {"#2 or #12 pays", "30 to 1"}, {"#3 or #11 pays", "18 to 1"}, {"#4 or #10 pays", "8 to 1"},
    {"#5 or #9 pays", "8 to 1"},   {"#6 or #8 pays", "6 to 1"},   {"#7 pays", "5 to 1"},
};
// The answers end where the space does, less a margin as wide as the one at the start.
constexpr double kLottoAnswers = 0.9 * BoardFacts::kPitchOfBoard;

const LottoPlace& PlaceOfLotto(int iSpace) {
    basErrLog::ErrAssert(BoardFacts::IsLotto(iSpace), QStringLiteral("DrawLotto called with unexpected index"));
    return iSpace == BoardFacts::kLottoSpaces[0] ? kLotto[0] : kLotto[1];
}

BoardPoint TextAnchor(int iSide, const BoardRect& rect, float fAcross) {
    const BoardPoint middle{(rect.x1 + rect.x2) / 2, (rect.y1 + rect.y2) / 2};
    switch (iSide) {
        case 0:
            return {middle.x, rect.y1 + fAcross};
        case 1:
            return {rect.x2 - fAcross, middle.y};
        case 2:
            return {middle.x, rect.y2 - fAcross};
        default:
            return {rect.x1 + fAcross, middle.y};
    }
}

int LetterHeight(float fTextSize) { return Int(PosLength(fTextSize) * kLetterShare); }

int SetLottoFont(const LottoFont& font, int iEscapement) {
    const int height = Int(PosLength(font.fHeight));
    Draw_SetFont(QStringLiteral("Arial"), height, Int(PosLength(font.fWidth)), iEscapement, 0, font.bBold, false,
                 false);
    return height;
}

void WriteLotto(int iHeight, const char* sText, const QString& sAlign, int x, int y) {
    if (iHeight < kSmallestLetter) return;
    Draw_Text(QString::fromLatin1(sText), sAlign, x, y, Color::Black());
}

} // namespace

void PosDrawSpaceText(int iSpace) try {
    const C_Space& space = basTAVL::g_oSpaces(iSpace);
    if (!space.IsShowing || BoardFacts::IsLotto(iSpace)) return;
    const int iSide = Int(double(iSpace) / BoardFacts::kSpacesPerSide);
    const int iEscapement = EscapementOfSide(iSide, QStringLiteral("Unexpected Case"));
    const int h = LetterHeight(space.TextSize());
    const TextDepth& part = space.Image.FullPath().isEmpty() ? kWithoutImage : kWithImage;
    const float fAcross = (part.depth - float(space.NLines()) * space.TextSize()) * 0.5F + part.start;
    const BoardPoint anchor = TextAnchor(iSide, m_SpaceRect(iSpace, SpacePart::Whole), fAcross);
    Draw_SetFont(space.Font.Family, h, CLng(h * 0.5), iEscapement, 0, space.Font.Bold, space.Font.Italic, false);
    if (space.NLines() < 1 || h < kSmallestLetter) return;
    Draw_TextArray(space.TextArray(), QStringLiteral("C"), PosX(anchor.x), PosY(anchor.y), Color::Black());
} catch (...) {
    ErrTail("basPosit!", "PosDrawSpaceText", iSpace);
}

void PosDrawCornerText(int iBlock, int iCorner) try {
    basErrLog::ErrAssert(iCorner >= 0 && iCorner < kCornersOnBoard, QStringLiteral("Unexpected Case"));
    const C_Corner& corner = basTAVL::g_oCorners(iCorner);
    const int h = LetterHeight(corner.TextSize(iBlock));
    const bool bOwnFont = iBlock == 0;
    Draw_SetFont(bOwnFont ? corner.Font.Family : QStringLiteral("Times New Roman"), h, CLng(h * 0.5),
                 kCornerEscapement[iCorner], 0, bOwnFont && corner.Font.Bold, !bOwnFont || corner.Font.Italic, false);
    if (corner.NLines(iBlock) <= 0 || h < kSmallestLetter) return;
    Draw_TextArray(corner.TextArray(iBlock), QStringLiteral("C"), PosX(corner.X), PosY(corner.Y), Color::Black());
} catch (...) {
    ErrTail("basPosit!", "PosDrawCornerText", iBlock, iCorner);
}

void DrawLotto(int iSpace) try {
    const LottoPlace& place = PlaceOfLotto(iSpace);
    const QString sLeft = QStringLiteral("L");
    const int y = PosY(place.start.y);
    int x = PosX(place.start.x);
    WriteLotto(SetLottoFont(kLottoHead, place.iEscapement), "PLACE YOUR BET", sLeft, x, y);

    const int iBody = SetLottoFont(kLottoBody, place.iEscapement);
    const int iBodyStep = place.iDirection * iBody;
    x += iBodyStep;
    for (const char* sRule : kLottoRule) {
        x += iBodyStep;
        WriteLotto(iBody, sRule, sLeft, x, y);
    }
    x += 2 * iBodyStep;

    const int iTable = SetLottoFont(kLottoTable, place.iEscapement);
    const int iTableStep = place.iDirection * iTable;
    const int yAnswers = CLng(y - place.iDirection * kLottoAnswers * GetScale());
    for (const LottoPay& pay : kLottoPay) {
        WriteLotto(iTable, pay.sRoll, sLeft, x, y);
        WriteLotto(iTable, pay.sPay, QStringLiteral("R"), x, yAnswers);
        x += iTableStep;
    }
} catch (...) {
    ErrTail("basPosit!", "DrawLotto", iSpace);
}

} // namespace basPosit
