// SPDX-License-Identifier: MIT
// The coloured bands at the head of a property's deed.
#include "board/basPositRents.h"
#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "kit/DeedCards.h"
#include "kit/DeedCards_layout.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"
#include "platform/paint/Surface.h"
#include "services/basErrLog.h"
#include "services/Desktop.h"

namespace {

/// How the picture of a band is made, in inches. It is painted a little narrower.
struct BandPicture {
    double height;
    double line;
};
constexpr double kPictureWidth = 2.5;
constexpr BandPicture kSidePicture{0.125, 0.1};
constexpr BandPicture kPricePicture{0.5, 0.3};
// The other look: the side's name is smaller, and a line of this nominal size fills the lower band.
constexpr BandPicture kSmallSidePicture{0.125, 0.08};
constexpr double kTitleNominal = 0.32;
constexpr BandPicture kTitlePicture{0.5, kTitleNominal / clsRenderDestination::kSizeOfHeight};

QString PriceFile(int iDeed) { return MadePicture::PathOf(QStringLiteral("Rent%1Image.bmp").arg(iDeed)); }

bool MakeBand(const QString& sPath, const BandPicture& band, const QString& sText, Color lForeColor, Color lBackColor) {
    return frmBMP::Instance().GenerateTextImage(sPath, kPictureWidth, band.height, sText, QStringLiteral("Arial"), true,
                                                false, band.line, lForeColor, lBackColor);
}

bool MakeSideBand(int iSide, const BandPicture& band) {
    const basPosit::SideRecord& side = basPosit::m_SideRec(iSide);
    return MakeBand(DeedLayout::SideFile(iSide), band, side.sText, side.lText, side.lFill);
}

bool MakeGroupBand(int iDeed, const BandPicture& band, const QString& sText) {
    const C_Space& space = basTAVL::g_oSpaces(iDeed);
    return MakeBand(PriceFile(iDeed), band, sText, space.CostColor, space.SpaceColor);
}

} // namespace

namespace DeedLayout {

QString SideFile(int iSide) { return MadePicture::PathOf(QStringLiteral("Side%1Image.bmp").arg(iSide)); }

void TellNoDeeds() { MsgBox(QStringLiteral("Cannot draw title deeds at this time.")); }

void DrawFrame(Surface& surface, const QRect& box) {
    surface.Line(box.x(), box.y(), box.x() + box.width(), box.y() + box.height(), basTAVL::g_lPrintBlack(),
                 LineForm::Box);
}

void PaintBand(Surface& surface, const PiecePlace& place, const QString& sFile, const InchBox& band) {
    const QRect box = place.Box(band);
    MadePicture::Paint(surface, sFile, box);
    DrawFrame(surface, box);
}

} // namespace DeedLayout

bool DeedSideColorBitmap(int iSide, QString& sPath) try {
    sPath = DeedLayout::SideFile(iSide);
    return MakeSideBand(iSide, kSidePicture);
} catch (...) {
    ErrTail("clsRenderDestination!", "DeedSideColorBitmap", iSide);
}

bool DeedGroupColorBitmap(int iDeed, QString& sPath) try {
    sPath = PriceFile(iDeed);
    const QString price = basTAVL::g_vCurrencySign() + WithThousands(basPosit::m_Rent(iDeed).Cost);
    return MakeGroupBand(iDeed, kPricePicture, price);
} catch (...) {
    ErrTail("clsRenderDestination!", "DeedGroupColorBitmap", iDeed);
}

bool DeedTextInColor(clsRenderDestination& destination, int iDeed, int lX, int lY) try {
    const int side = iDeed / basTAVL::kSpacesPerSide;
    const QString title = basTAVL::CRLF2Space(basTAVL::g_oSpaces(iDeed).TextAll());
    if (!MakeSideBand(side, kSmallSidePicture) || !MakeGroupBand(iDeed, kTitlePicture, title)) {
        DeedLayout::TellNoDeeds();
        return false;
    }
    Surface& surface = destination.Destination();
    const PiecePlace place(destination, lX, lY);
    surface.DrawWidth = place.Length(DeedLayout::kPenInches);
    DeedLayout::PaintBand(surface, place, DeedLayout::SideFile(side), DeedLayout::kSideBand);
    DeedLayout::PaintBand(surface, place, PriceFile(iDeed), DeedLayout::kPriceBand);
    MadePicture::Delete(DeedLayout::SideFile(side));
    MadePicture::Delete(PriceFile(iDeed));
    return true;
} catch (...) {
    ErrTail("clsRenderDestination!", "DeedTextInColor", iDeed, lX, lY);
}
