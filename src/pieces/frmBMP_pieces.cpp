// SPDX-License-Identifier: MIT
// Pictures of the pieces of the game: stickers, spaces, banknotes, tokens.
#include "pieces/frmBMP.h"

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "drawing/clsBMP.h"
#include "platform/paint/PaintImage.h"
#include "platform/paint/RecordingForm.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/Numbers.h"
#include "render/clsRenderDestination.h"
#include "services/basErrLog.h"

namespace {

constexpr double kLargestFactor = 3.0;
// What the title of a maximised window takes of the screen's height.
constexpr int kMarginHeight = 24;

constexpr double kMoneyFactor = 2.0;
constexpr int kMoneyMargin = 8;
constexpr double kNoteWidth = 3.75;
constexpr double kNoteHeight = 2.0;

constexpr int kTokenPixels = 266;
// A corner's content starts this far from both edges of its sticker.
constexpr double kCornerStart = 0.05;

using enum basTAVL::LabelSize;

double Size(basTAVL::LabelSize size) { return basTAVL::g_dblLabelSizes(size); }

// How many times 96 dots an inch a length can be drawn at on so many pixels of a surface.
double FactorFor(double dblInches, double largest, int lMax) {
    const int lNeed = CLng(dblInches * kScreenDotsPerInch * largest);
    return lNeed > lMax ? lMax * largest / lNeed : largest;
}

double StickerFactor(double dblHeight) {
    return FactorFor(dblHeight, kLargestFactor, ScratchForm::LargestSize().height() - kMarginHeight);
}

// A note is wider than high, so its width may be what doesn't fit.
double MoneyFactor() {
    const QSize room = ScratchForm::LargestSize() - QSize(kMoneyMargin, kMoneyMargin);
    return std::min(FactorFor(kNoteWidth, kMoneyFactor, room.width()),
                    FactorFor(kNoteHeight, kMoneyFactor, room.height()));
}

int PixelsOf(double dblInches, double factor) { return CLng(dblInches * kScreenDotsPerInch * factor); }

/// The pixels of a piece that goes on paper as well: a photograph in it is decoded as large as paper wants it, and so
/// only once.
class PieceForm : public ScratchForm {
public:
    PieceForm(QSize size, double dblDPI) : ScratchForm(size), m_dpi(dblDPI) {}
    int PicturePixels(double length) override {
        return CLng(std::abs(ToPixels(length)) * std::max(kPaperDotsPerInch / m_dpi, 1.0));
    }

private:
    double m_dpi;
};

} // namespace

// Draws a piece twice: into the pixels of the file, and into a recording for the printer.
bool frmBMP::WritePiece(const QString& sFullPathDest, QSize size, double dblDPI, const DrawPiece& draw) {
    PieceForm form(size, dblDPI);
    draw(form);
    clsBMP file;
    const bool written = file.CreateFileHoldingImage(sFullPathDest, form.hDC(), size.width(), size.height(),
                                                     size.width(), size.height(), 24);
    m_sWhyNotMade = file.WhyNotWritten();
    if (!written) return false;
    RecordingForm recording(size, dblDPI);
    draw(recording);
    KeepRecording(sFullPathDest, recording.Take());
    return true;
}

namespace {

// The words of a piece, drawn as WritePiece has them drawn.
template <typename Draw>
PrintedText Recorded(QSize size, double dblDPI, Draw draw) {
    RecordingForm recording(size, dblDPI);
    draw(recording);
    return PrintedText::AsMade(recording.Take());
}

void DrawCornerText(clsRenderDestination& sticker, const C_Corner& corner) {
    sticker.CornerStickerText(corner, kCornerStart, kCornerStart, !corner.Image.FullPath().isEmpty());
}

} // namespace

bool frmBMP::GenerateCornerImage(const QString& sFullPathDest, int iCorner) try {
    const double factor = StickerFactor(Size(kCornerSide));
    const int lSide = PixelsOf(Size(kCornerSide), factor);
    return WritePiece(sFullPathDest, QSize(lSide, lSide), factor * kScreenDotsPerInch, [=](Surface& form) {
        form.Line(0, 0, lSide, lSide, basTAVL::g_lPrintBack(), LineForm::FilledBox);
        clsRenderDestination sticker;
        sticker.Init(form, factor);
        sticker.CornerStickerImageV6(iCorner, kCornerStart, kCornerStart);
        DrawCornerText(sticker, basTAVL::g_oCorners(iCorner));
    });
} catch (...) {
    ErrTail("frmBMP!", "GenerateCornerImage", sFullPathDest, iCorner);
}

PrintedText frmBMP::RecordCornerText(const C_Corner& corner) {
    const double factor = StickerFactor(Size(kCornerSide));
    const int lSide = PixelsOf(Size(kCornerSide), factor);
    return Recorded(QSize(lSide, lSide), factor * kScreenDotsPerInch, [&](Surface& form) {
        clsRenderDestination sticker;
        sticker.Init(form, factor);
        DrawCornerText(sticker, corner);
    });
}

bool frmBMP::GenerateSpaceStickerImage(const QString& sFullPathDest, int iSpace) try {
    const double factor = StickerFactor(Size(kStickerHeight));
    const QSize size(PixelsOf(Size(kStickerWidth), factor), PixelsOf(Size(kStickerHeight), factor));
    return WritePiece(sFullPathDest, size, factor * kScreenDotsPerInch, [=](Surface& form) {
        form.Line(0, 0, size.width(), size.height(), basTAVL::g_lPrintBack(), LineForm::FilledBox);
        clsRenderDestination sticker;
        sticker.Init(form, factor);
        sticker.SpaceStickerImageV6(iSpace, 0, 0);
        const bool picture = !basTAVL::g_oSpaces(iSpace).Image.FullPath().isEmpty();
        sticker.SpaceStickerText(iSpace, 0, 0, picture);
    });
} catch (...) {
    ErrTail("frmBMP!", "GenerateSpaceStickerImage", sFullPathDest, iSpace);
}

namespace {

void DrawBox(Surface& form, int lWidth, int lHeight, Color fill) {
    form.Line(0, 0, lWidth, lHeight, fill, LineForm::FilledBox);
    form.Line(0, 0, lWidth, lHeight, Color::Black(), LineForm::Box);
}

void DrawCost(Surface& form, const C_Space& space, int lWidth, int lBand, double factor) {
    const int lLine = PixelsOf(Size(kFullCost), factor);
    basDraw::Draw_SetHdc(&form.hDC());
    const auto useWidth = [lLine](int lFont) {
        basDraw::Draw_SetFont(QStringLiteral("Arial"), lLine, lFont, 0, 0, false, false, false);
    };
    const int lFont = CLng(lLine / 2.0);
    useWidth(lFont);
    // Only words are as wide as this, as on the Lotto space; their first and last letter would be cut off.
    const int lRoom = lWidth - 2 * CLng(form.DrawWidth);
    const int lText = basDraw::Draw_GetWidth(space.Cost);
    if (lText > lRoom) useWidth(Int(double(lFont) * lRoom / lText));
    basDraw::Draw_Text(space.Cost, QStringLiteral("C"), CLng(lWidth / 2.0), CLng(0.25 * lBand), space.CostColor);
    basDraw::Draw_ReleaseObjects();
}

// The sticker's own area, centred in what remains under the band.
QPointF StickerOnFullSpace() {
    return {(Size(kFullWidth) - Size(kStickerWidth)) / 2,
            (Size(kFullHeight) - Size(kFullBand) - Size(kStickerHeight)) / 2 + Size(kFullBand)};
}

void DrawFullSpaceText(clsRenderDestination& sticker, const C_Space& space) {
    const QPointF at = StickerOnFullSpace();
    sticker.SpaceStickerText(space, at.x(), at.y(), !space.Image.FullPath().isEmpty());
}

void DrawFullSpace(Surface& form, int iSpace, double factor) {
    const C_Space& space = basTAVL::g_oSpaces(iSpace);
    const int lW = PixelsOf(Size(kFullWidth), factor);
    const int lH = PixelsOf(Size(kFullHeight), factor);
    const int lBand = PixelsOf(Size(kFullBand), factor);
    form.DrawWidth = PixelsOf(Size(kFullLine), factor);
    DrawBox(form, lW, lH, basTAVL::g_lPrintBack());
    if (space.SpaceColor.Value() >= 0) DrawBox(form, lW, lBand, space.SpaceColor);
    DrawCost(form, space, lW, lBand, factor);
    clsRenderDestination sticker;
    sticker.Init(form, factor);
    const QPointF at = StickerOnFullSpace();
    sticker.SpaceStickerImageV6(iSpace, at.x(), at.y());
    DrawFullSpaceText(sticker, space);
}

QSize FullSpacePixels(double factor) {
    return {PixelsOf(Size(kFullWidth), factor), PixelsOf(Size(kFullHeight), factor)};
}

} // namespace

bool frmBMP::GenerateSpaceFullImage(const QString& sFullPathDest, int iSpace) try {
    const double factor = StickerFactor(Size(kFullHeight));
    return WritePiece(sFullPathDest, FullSpacePixels(factor), factor * kScreenDotsPerInch,
                      [=](Surface& form) { DrawFullSpace(form, iSpace, factor); });
} catch (...) {
    ErrTail("frmBMP!", "GenerateSpaceFullImage", sFullPathDest, iSpace);
}

PrintedText frmBMP::RecordSpaceText(const C_Space& space) {
    const double factor = StickerFactor(Size(kFullHeight));
    return Recorded(FullSpacePixels(factor), factor * kScreenDotsPerInch, [&](Surface& form) {
        clsRenderDestination sticker;
        sticker.Init(form, factor);
        DrawFullSpaceText(sticker, space);
    });
}

bool frmBMP::GenerateMoneyImage(const QString& sFullPathDest, int iMoney) try {
    const double factor = MoneyFactor();
    const QSize size(PixelsOf(kNoteWidth, factor), PixelsOf(kNoteHeight, factor));
    return WritePiece(sFullPathDest, size, factor * kScreenDotsPerInch, [=](Surface& form) {
        basTAVL::g_oMoney(iMoney).DrawMoney(form, factor * kScreenDotsPerInch, 0, 0, true, true, false);
    });
} catch (...) {
    ErrTail("frmBMP!", "GenerateMoneyImage", sFullPathDest, iMoney);
}

PrintedText frmBMP::RecordMoneyText(const C_Money& note) {
    const double factor = MoneyFactor();
    const QSize size(PixelsOf(kNoteWidth, factor), PixelsOf(kNoteHeight, factor));
    return Recorded(size, factor * kScreenDotsPerInch, [&](Surface& form) {
        note.DrawMoney(form, factor * kScreenDotsPerInch, 0, 0, false, true, false);
    });
}

bool frmBMP::GenerateTokenImage(const QString& sFullPathDest, int iToken) try {
    return WritePiece(sFullPathDest, QSize(kTokenPixels, kTokenPixels), kTokenPixels / kTokenInches,
                      [this, iToken](Surface& form) {
                          // A record of its own, as one whose picture is away gives it up.
                          C_Token token = basTAVL::g_oTokens(iToken);
                          token.Redraw(0, 0, kTokenPixels, kTokenPixels, false, form, picOriginal, {}, Color::White());
                      });
} catch (...) {
    ErrTail("frmBMP!", "GenerateTokenImage", sFullPathDest, iToken);
}

PrintedText frmBMP::RecordTokenText(const C_Token& token) {
    return Recorded(QSize(kTokenPixels, kTokenPixels), kTokenPixels / kTokenInches, [&](Surface& form) {
        C_Token likeness = token;
        basDraw::Draw_SetHdc(&form.hDC());
        likeness.DrawText(0, 0, kTokenPixels, kTokenPixels, false, {});
        basDraw::Draw_ReleaseObjects();
    });
}
