// SPDX-License-Identifier: MIT
#include "board/basPosit.h"

#include "document/basTAVL.h"
#include "services/basErrLog.h"

using namespace BoardFacts;

namespace basPosit {
namespace {

// Lines that the whole board is built on, besides its grid.
constexpr float kOuterHigh = 0.9751F;
constexpr float kOuterLow = 0.0249F;
constexpr float kBandDepth = 0.0208F;
constexpr float kTipHigh = 0.8087F; // the corners' cut tips, and the side bands' inner edges
constexpr float kTipLow = 0.1913F;

// Image of a space: a square, so far in from the space's start and from its inner edge.
constexpr float kImageSize = 0.0593F;
constexpr float kImageAlong = 0.01295F;
constexpr float kImageAcross = 0.0239F;

constexpr float kSideTextGap = 0.0011F;
constexpr float kDefaultTextHeight = 0.01F;

// A group of properties.
struct GroupLook {
    int red;
    int green;
    int blue;
    /// Prices are white on the band.
    bool bWhiteCost;
    Color Value() const { return Color::Rgb(red, green, blue); }
};

constexpr GroupLook kGroupLook[kPropColors] = {{0, 128, 0, true},    {192, 0, 96, true},   {255, 128, 0, true},
                                               {0, 70, 127, true},   {255, 255, 0, false}, {221, 19, 223, true},
                                               {0, 147, 221, false}, {255, 0, 0, true}};

// Groups of the cells of the title box, from left to right or from the top.
constexpr int kStripGroup[kStripCells] = {7, 7,        0,        0, 0,        kNoGroup, 1, 1,        1, 4, 4,
                                          4, kNoGroup, 2,        2, 3,        3,        3, kNoGroup, 2, 2, 2,
                                          5, 5,        kNoGroup, 4, kNoGroup, 4,        4, kNoGroup, 3, 3};
constexpr int kColumnGroupA[kColumnCells] = {4, 4, kNoGroup, 0, 0};
constexpr int kColumnGroupB[kColumnCells] = {0, 0, kNoGroup, 1, 1};

struct SideRow {
    int iGroup;
    bool bWhiteText;
    BoardRect rect;
};
constexpr SideRow kSideRow[kSidesOfBoard] = {
    {7, true, {kNearEndLow, kTipHigh, kNearEndHigh, kInnerHigh}},
    {4, false, {kInnerLow, kNearEndLow, kTipLow, kNearEndHigh}},
    {2, true, {kNearEndLow, kInnerLow, kNearEndHigh, kTipLow}},
    {1, true, {kTipHigh, kNearEndLow, kInnerHigh, kNearEndHigh}},
};

constexpr std::array<BoardPoint, kCornerPoints> kCornerRow[kCornersOnBoard] = {
    {{{0.9751F, 0.9751F}, {0.7983F, 0.9751F}, {0.7983F, 0.8087F}, {0.8087F, 0.7983F}, {0.9751F, 0.7983F}}},
    {{{0.0249F, 0.9751F}, {0.0249F, 0.7983F}, {0.1913F, 0.7983F}, {0.2017F, 0.8087F}, {0.2017F, 0.9751F}}},
    {{{0.0249F, 0.0249F}, {0.2017F, 0.0249F}, {0.2017F, 0.1913F}, {0.1913F, 0.2017F}, {0.0249F, 0.2017F}}},
    {{{0.9751F, 0.0249F}, {0.9751F, 0.2017F}, {0.8087F, 0.2017F}, {0.7983F, 0.1913F}, {0.7983F, 0.0249F}}},
};

struct CornerPlace {
    BoardPoint image;
    float fImageSize;
    BoardPoint text;
};
constexpr CornerPlace kCornerPlace[kCornersOnBoard] = {
    {{0.8087F, 0.8087F}, 0.0884F, {0.8867F, 0.8867F}},
    {{0.1029F, 0.8087F}, 0.0884F, {0.1133F, 0.8867F}},
    {{0.1029F, 0.1029F}, 0.0884F, {0.1133F, 0.1133F}},
    {{0.8037F, 0.0279F}, kFateImage, {0.84F, 0.16F}},
};

Color GroupColor(int iGroup) { return iGroup == kNoGroup ? Color::None() : m_lPropColor(iGroup); }

BoardRect RectOfSpace(int iSide, int i) {
    const float from = float(i) * kPitch;
    const float to = float(i + 1) * kPitch;
    switch (iSide) {
        case 0:
            return {kNearEndHigh - to, kInnerHigh, kNearEndHigh - from, kOuterHigh};
        case 1:
            return {kOuterLow, kNearEndHigh - to, kInnerLow, kNearEndHigh - from};
        case 2:
            return {kNearEndLow + from, kOuterLow, kNearEndLow + to, kInnerLow};
        default:
            return {kInnerHigh, kNearEndLow + from, kOuterHigh, kNearEndLow + to};
    }
}

// The space cut down to the band at its inner edge.
BoardRect BandOf(int iSide, BoardRect rect) {
    switch (iSide) {
        case 0:
            rect.y2 = rect.y1 + kBandDepth;
            break;
        case 1:
            rect.x1 = rect.x2 - kBandDepth;
            break;
        case 2:
            rect.y1 = rect.y2 - kBandDepth;
            break;
        default:
            rect.x2 = rect.x1 + kBandDepth;
    }
    return rect;
}

void PlaceImageOfSpace(int iSide, const BoardRect& rect, C_Image& image) {
    image.W = kImageSize;
    image.H = kImageSize;
    image.X = rect.x1 + kImageAlong;
    image.Y = rect.y1 + kImageAlong;
    switch (iSide) {
        case 0:
            image.Y = rect.y1 + kImageAcross;
            break;
        case 1:
            image.X = rect.x2 - kImageAcross - kImageSize;
            break;
        case 2:
            image.Y = rect.y2 - kImageAcross - kImageSize;
            break;
        default:
            image.X = rect.x1 + kImageAcross;
    }
}

// Only the first letter counts; the rest is how it was always stored.
const char* TypeOf(SpaceKind kind) {
    switch (kind) {
        case SpaceKind::Utility:
            return "U";
        case SpaceKind::News:
            return "N    'News";
        case SpaceKind::Lotto:
            return "L";
        default:
            return "P";
    }
}

void ColorSpace(C_Space& space, const BoardFacts::Space& facts) {
    space.SpaceType = QString::fromLatin1(TypeOf(facts.kind));
    space.SpaceColor = GroupColor(facts.iGroup);
    if (facts.kind == SpaceKind::Property)
        space.CostColor = kGroupLook[facts.iGroup].bWhiteCost ? Color::White() : Color::Black();
    if (facts.kind != SpaceKind::Lotto) return;
    space.CostColor = Color::Rgb(255, 255, 0);
    space.SpaceColor = Color::Black();
    space.Cost = QStringLiteral("PLAY LOTTO");
}

BoardPoint SideTextAnchor(int iSide, const BoardRect& rect) {
    const float midX = (rect.x1 + rect.x2) / 2;
    const float midY = (rect.y1 + rect.y2) / 2;
    switch (iSide) {
        case 0:
            return {midX, rect.y1 + kSideTextGap};
        case 1:
            return {rect.x2 - kSideTextGap, midY};
        case 2:
            return {midX, rect.y2 - kSideTextGap};
        default:
            return {rect.x1 + kSideTextGap, midY};
    }
}

void InitCenterBoxes() {
    const BoardRect goodNews{0.2287F, 0.6F, 0.4158F, 0.7061F};
    m_CenterRect(kPanel) = {kInnerLow, kInnerLow, kInnerHigh, kInnerHigh};
    m_CenterRect(kTitleBox) = {0.2204F, 0.2473F, 0.7775F, 0.3712F};
    m_CenterRect(kSubtitleBox) = {0.3015F, 0.3928F, 0.7006F, 0.4219F};
    m_CenterRect(kGoodNewsBox) = goodNews;
    // The rest mirrors that box about the board's middle.
    m_CenterRect(kBadNewsBox) = {1 - goodNews.x2, goodNews.y1, 1 - goodNews.x1, goodNews.y2};
    m_CenterRect(kMoneyBox) = {goodNews.x1, 0.73F, 1 - goodNews.x1, 0.78F};
    m_CenterRect(kTokensBox) = {goodNews.x1, 0.52F, 1 - goodNews.x1, 0.57F};
}

// One of the two words that share the title box.
void InitTitleWord(CenterTextLook& look, float fAnchorOfWidth, float fLimitOfWidth) {
    const BoardRect& box = m_CenterRect(kTitleBox);
    look.sFamily = QStringLiteral("Arial");
    look.fFontHeight = 0.333F * box.Height();
    look.anchor = {box.x1 + fAnchorOfWidth * box.Width(), box.y1 + 0.333F * box.Height()};
    look.fWidthLimit = fLimitOfWidth * box.Width();
}

} // namespace

void PosInitColor() try {
    for (int i = 0; i < kPropColors; ++i)
        m_lPropColor(i) = kGroupLook[i].Value();
    for (int i = 0; i < kStripCells; ++i)
        m_lStripColor(i) = GroupColor(kStripGroup[i]);
    for (int i = 0; i < kColumnCells; ++i) {
        m_lColumnColorA(i) = GroupColor(kColumnGroupA[i]);
        m_lColumnColorB(i) = GroupColor(kColumnGroupB[i]);
    }
} catch (...) {
    ErrTail("basPosit!", "PosInitColor");
}

void PosInitCenter() try {
    InitCenterBoxes();
    for (int i = 0; i < kCenterTexts; ++i) {
        m_CenterLook(i) = CenterTextLook{};
        // The last record keeps a height of 0, as it always has.
        if (i < kCenterTexts - 1) m_CenterLook(i).fFontHeight = kDefaultTextHeight;
    }
    InitTitleWord(m_CenterLook(0), 0.7556F, -0.3545F);
    InitTitleWord(m_CenterLook(1), 0.319F, -0.49F);
    CenterTextLook& subtitle = m_CenterLook(2);
    subtitle.sFamily = QStringLiteral("Times New Roman");
    subtitle.fFontHeight = 0.02F;
    subtitle.anchor = {0.5F, 0.4F};
    subtitle.fWidthLimit = 0.35919F;
    subtitle.bItalic = true;
} catch (...) {
    ErrTail("basPosit!", "PosInitCenter");
}

void PosInitSpace() try {
    for (int iSpace = 0; iSpace < kSpacesOnBoard; ++iSpace) {
        const int iSide = PosSide(iSpace);
        const BoardRect rect = RectOfSpace(iSide, iSpace % basTAVL::kSpacesPerSide);
        m_SpaceRect(iSpace, SpacePart::Whole) = rect;
        m_SpaceRect(iSpace, SpacePart::Band) = BandOf(iSide, rect);
        C_Space& space = basTAVL::g_oSpaces(iSpace);
        PlaceImageOfSpace(iSide, rect, space.Image);
        ColorSpace(space, BoardFacts::kTable[size_t(iSpace)]);
    }
} catch (...) {
    ErrTail("basPosit!", "PosInitSpace");
}

void PosInitSide() try {
    for (int iSide = 0; iSide < kSidesOfBoard; ++iSide) {
        const SideRow& row = kSideRow[iSide];
        SideRecord& side = m_SideRec(iSide);
        side.lFill = m_lPropColor(row.iGroup);
        side.lText = row.bWhiteText ? Color::White() : Color::Black();
        side.rect = row.rect;
        side.anchor = SideTextAnchor(iSide, row.rect);
    }
} catch (...) {
    ErrTail("basPosit!", "PosInitSide");
}

void PosInitCorn() try {
    for (int iCorner = 0; iCorner < kCornersOnBoard; ++iCorner) {
        const CornerPlace& place = kCornerPlace[iCorner];
        m_CornerPoly(iCorner) = kCornerRow[iCorner];
        C_Corner& corner = basTAVL::g_oCorners(iCorner);
        corner.Image.X = place.image.x;
        corner.Image.Y = place.image.y;
        corner.Image.W = place.fImageSize;
        corner.Image.H = place.fImageSize;
        corner.X = place.text.x;
        corner.Y = place.text.y;
    }
} catch (...) {
    ErrTail("basPosit!", "PosInitCorn");
}

} // namespace basPosit
