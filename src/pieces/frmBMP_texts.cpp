// SPDX-License-Identifier: MIT
// Pictures of texts: titles, bands, prices.
#include "pieces/frmBMP.h"

#include "document/basTAVL.h"
#include "drawing/basDraw.h"
#include "drawing/clsBMP.h"
#include "platform/paint/RecordingForm.h"
#include "platform/paint/Surface.h"
#include "platform/paint/Units.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

namespace {

constexpr double kLargestFactor = 3.0;
constexpr int kMarginWidth = 8;
constexpr int kMarginHeight = 24;
constexpr double kUsablePart = 0.95;

constexpr double kLineDpi = 300;
constexpr int kMarginTwipsAcross = 120;
constexpr int kMarginTwipsDown = 360;
// Slanted letters reach beyond what they measure.
constexpr double kItalicExtra = 0.05;

struct TextStyle {
    QString sFamily;
    bool bBold;
    bool bItalic;
    Color lForeColor;
    Color lBackColor;

    void UseOn(Surface& form) const {
        form.SetBackColor(lBackColor);
        form.ForeColor = lForeColor;
        UseFontOn(form);
    }
    void UseFontOn(Surface& form) const {
        form.FontName = sFamily;
        form.FontBold = bBold;
        form.FontItalic = bItalic;
        form.FontTransparent = true;
    }
};

// A size that isn't above 0 is none.
void UseSize(Surface& form, double size) { form.SetFontSize(size > 0 ? size : 1); }

// How many times 96 dots an inch a box can be drawn at on the largest surface.
double FactorFor(double dblwInches, double dblhInches) {
    const QSize limit = ScratchForm::LargestSize();
    const int lMaxW = limit.width() - kMarginWidth;
    const int lMaxH = limit.height() - kMarginHeight;
    double factor = kLargestFactor;
    const int lNeedW = CLng(factor * dblwInches * kScreenDotsPerInch);
    if (lNeedW > lMaxW) factor = lMaxW * factor / lNeedW;
    const int lNeedH = CLng(factor * dblhInches * kScreenDotsPerInch);
    if (lNeedH > lMaxH) factor = lMaxH * factor / lNeedH;
    return factor;
}

QSize BoxOf(double dblwInches, double dblhInches, double factor) {
    return {std::max(CLng(factor * dblwInches * kScreenDotsPerInch), 1),
            std::max(CLng(factor * dblhInches * kScreenDotsPerInch), 1)};
}

/// A block of lines fitted into a box of pixels.
struct FittedBlock {
    int lFont = 0;
    int lPitch = 0;
};

FittedBlock FitBlock(const QStringList& lines, const TextStyle& style, QSize box, int lWantedHeight) {
    ScratchForm probe(QSize(1, 1));
    style.UseFontOn(probe);
    const auto pitchAt = [&](int lFont) {
        UseSize(probe, lFont);
        return std::max(CLng(probe.TextHeight(lines.first())), 1);
    };
    FittedBlock block;
    block.lFont = lWantedHeight;
    block.lPitch = pitchAt(block.lFont);
    const auto take = [&](int lFont) {
        block.lFont = lFont;
        block.lPitch = pitchAt(lFont);
    };
    take(Int(double(block.lFont) * block.lFont / block.lPitch));
    const int lCount = int(lines.size());
    if (box.height() < lCount * block.lPitch) take(Int(double(block.lFont) * box.height() / (lCount * block.lPitch)));
    double widest = 0;
    for (const QString& line : lines)
        widest = std::max(widest, probe.TextWidth(line));
    if (widest > kUsablePart * box.width()) take(CLng(kUsablePart * box.width() * block.lFont / widest));
    return block;
}

void DrawBlock(Surface& form, const QStringList& lines, const TextStyle& style, QSize box, const FittedBlock& block) {
    style.UseOn(form);
    UseSize(form, block.lFont);
    int lTop = CLng((box.height() - int(lines.size()) * block.lPitch) / 2.0);
    for (const QString& line : lines) {
        form.CurrentX = (box.width() - form.TextWidth(line)) / 2;
        form.CurrentY = lTop;
        form.Print(line);
        lTop += block.lPitch;
    }
}

/// Lines of text in a box of so many inches.
class BoxedText {
public:
    BoxedText(double dblwInches, double dblhInches, const QString& sText, const TextStyle& style, double dblSize)
        : m_factor(FactorFor(dblwInches, dblhInches)), m_box(BoxOf(dblwInches, dblhInches, m_factor)), m_style(style),
          m_lines(sText.split(QStringLiteral("\r\n"))),
          m_block(FitBlock(m_lines, style, m_box, CLng(m_factor * dblSize * kScreenDotsPerInch))) {}

    QSize Box() const { return m_box; }
    double DotsPerInch() const { return m_factor * kScreenDotsPerInch; }
    void Draw(Surface& form) const { DrawBlock(form, m_lines, m_style, m_box, m_block); }

private:
    double m_factor;
    QSize m_box;
    TextStyle m_style;
    QStringList m_lines;
    FittedBlock m_block;
};

} // namespace

bool frmBMP::GenerateTextImage(const QString& sFullPathDest, double dblwInches, double dblhInches, const QString& sText,
                               const QString& sFamily, bool bBold, bool bItalic, double dblSize, Color lForeColor,
                               Color lBackColor) try {
    const BoxedText block(dblwInches, dblhInches, sText, {sFamily, bBold, bItalic, lForeColor, lBackColor}, dblSize);
    return WritePiece(sFullPathDest, block.Box(), block.DotsPerInch(), [&](Surface& form) { block.Draw(form); });
} catch (...) {
    ErrTail("frmBMP!", "GenerateTextImage", sFullPathDest, dblwInches, dblhInches, sText, sFamily, bBold, bItalic,
            dblSize, lForeColor, lBackColor);
}

PrintedText frmBMP::RecordTextImage(double dblwInches, double dblhInches, const QString& sText, const QString& sFamily,
                                    bool bBold, bool bItalic, double dblSize) {
    const TextStyle style{sFamily, bBold, bItalic, Color::Black(), Color::White()};
    const BoxedText block(dblwInches, dblhInches, sText, style, dblSize);
    RecordingForm recording(block.Box(), block.DotsPerInch());
    block.Draw(recording);
    return PrintedText::AsMade(recording.Take());
}

namespace {

// The character width at which a text comes out as wide as the box; 0, the font's own, where it fits so.
int StretchedWidth(const QString& sText, const TextStyle& style, QSize box, bool bStretch) {
    constexpr int kProbe = 1000;
    const auto widthAt = [&](int lWidth) {
        basDraw::Draw_SetFont(style.sFamily, box.height(), lWidth, 0, 0, style.bBold, style.bItalic, false);
        return basDraw::Draw_GetWidth(sText);
    };
    ScratchForm probe(QSize(1, 1));
    basDraw::Draw_SetHdc(&probe.hDC());
    const int natural = widthAt(0);
    const int probed = widthAt(kProbe);
    basDraw::Draw_ReleaseObjects();
    if (probed <= 0 || (!bStretch && natural <= box.width())) return 0;
    return std::max(Int(double(kProbe) * box.width() / probed), 1);
}

void DrawStretched(Surface& form, const QString& sText, const TextStyle& style, QSize box, int lWidth) {
    form.SetBackColor(style.lBackColor);
    basDraw::Draw_SetHdc(&form.hDC());
    basDraw::Draw_SetFont(style.sFamily, box.height(), lWidth, 0, 0, style.bBold, style.bItalic, false);
    basDraw::Draw_Text(sText, QStringLiteral("C"), CLng(box.width() / 2.0), 0, style.lForeColor);
    basDraw::Draw_ReleaseObjects();
}

} // namespace

bool frmBMP::GenerateStretchedTextImage(const QString& sFullPathDest, double dblwInches, double dblhInches,
                                        const QString& sText, const QString& sFamily, bool bBold, bool bItalic,
                                        Color lForeColor, Color lBackColor, bool bStretch) try {
    const double factor = FactorFor(dblwInches, dblhInches);
    const QSize box = BoxOf(dblwInches, dblhInches, factor);
    const TextStyle style{sFamily, bBold, bItalic, lForeColor, lBackColor};
    const QString line = basTAVL::CRLF2Space(sText);
    const int lWidth = StretchedWidth(line, style, box, bStretch);
    return WritePiece(sFullPathDest, box, factor * kScreenDotsPerInch,
                      [&](Surface& form) { DrawStretched(form, line, style, box, lWidth); });
} catch (...) {
    ErrTail("frmBMP!", "GenerateStretchedTextImage", sFullPathDest, dblwInches, dblhInches, sText, sFamily, bBold,
            bItalic, lForeColor, lBackColor, bStretch);
}

namespace {

/// A single line and the bands that it is folded into.
struct FoldedLine {
    int lHeight = 0; ///< Of a band, which is that of the line.
    double size = 0; ///< For the form's font.
    int lTextWidth = 0;
    int lWidth = 0; ///< Of the unfolded picture.
    int lBandWidth = 0;
    int lBands = 1;
    double dblDPI = kLineDpi; ///< Not what the rounded height gives: the width would come out another.

    void MeasureAt(int height, double dblwInches, Surface& probe, const QString& sText, bool bItalic) {
        lHeight = std::max(height, 1);
        UseSize(probe, lHeight);
        const double tall = probe.TextHeight(sText);
        size = CLng(double(lHeight) * lHeight / tall);
        UseSize(probe, size);
        lTextWidth = CLng(probe.TextWidth(sText));
        if (bItalic) lTextWidth += CLng(lTextWidth * kItalicExtra);
        lWidth = std::max({CLng(dblDPI * dblwInches), lTextWidth, 1});
        lBands = (lWidth + lBandWidth - 1) / lBandWidth;
    }
};

FoldedLine Fold(const QString& sText, const TextStyle& style, double dblwInches, double dblhInches) {
    const QSize limit = ScratchForm::LargestSize();
    constexpr double kTwips = kTwipsPerPixel;
    const int lMaxW = std::max(CLng((limit.width() * kTwips - kMarginTwipsAcross) / kTwips), 1);
    const int lMaxH = std::max(CLng((limit.height() * kTwips - kMarginTwipsDown) / kTwips), 2);
    ScratchForm probe(QSize(1, 1));
    style.UseFontOn(probe);
    FoldedLine line;
    line.lBandWidth = lMaxW;
    int lH = CLng(dblhInches * kLineDpi);
    const auto lowerTo = [&](int height) {
        lH = height;
        line.dblDPI = lH / dblhInches;
    };
    if (2 * lH > lMaxH) lowerTo(lMaxH / 2); // two bands always fit
    line.MeasureAt(lH, dblwInches, probe, sText, style.bItalic);
    // A lower line is a shorter one too, so this ends: at the latest with bands of one pixel.
    while (line.lBands * line.lHeight > lMaxH && line.lHeight > 1) {
        lowerTo(std::min(lMaxH / line.lBands, line.lHeight - 1));
        line.MeasureAt(lH, dblwInches, probe, sText, style.bItalic);
    }
    return line;
}

void PrintAt(Surface& form, const FoldedLine& line, const QString& sText, int lBand) {
    form.CurrentX = (line.lWidth - line.lTextWidth) / 2.0 - double(lBand) * line.lBandWidth;
    form.CurrentY = double(lBand) * line.lHeight;
    form.Print(sText);
}

std::shared_ptr<const Recording> Recorded(const FoldedLine& line, const QString& sText, const TextStyle& style) {
    RecordingForm recording(QSize(line.lWidth, line.lHeight), line.dblDPI);
    style.UseOn(recording);
    UseSize(recording, line.size);
    PrintAt(recording, line, sText, 0);
    return recording.Take();
}

} // namespace

bool frmBMP::GenerateSingleLineImage(const QString& sFullPathDest, double dblwInches, double dblhInches,
                                     const QString& sText, const QString& sFamily, bool bBold, bool bItalic,
                                     Color lForeColor, Color lBackColor) try {
    const QString text = basTAVL::CRLF2Space(sText);
    const TextStyle style{sFamily, bBold, bItalic, lForeColor, lBackColor};
    const FoldedLine line = Fold(text, style, dblwInches, dblhInches);
    ScratchForm form(QSize(std::min(line.lWidth, line.lBandWidth), line.lBands * line.lHeight));
    style.UseOn(form);
    UseSize(form, line.size);
    for (int band = 0; band < line.lBands; ++band)
        PrintAt(form, line, text, band);
    clsBMP file;
    const bool written = file.CreateFileHoldingImage(sFullPathDest, form.hDC(), line.lWidth, line.lHeight,
                                                     line.lBandWidth, line.lHeight, 24);
    m_sWhyNotMade = file.WhyNotWritten();
    if (!written) return false;
    KeepRecording(sFullPathDest, Recorded(line, text, style));
    return true;
} catch (...) {
    ErrTail("frmBMP!", "GenerateSingleLineImage", sFullPathDest, dblwInches, dblhInches, sText, sFamily, bBold, bItalic,
            lForeColor, lBackColor);
}

PrintedText frmBMP::RecordSingleLine(double dblwInches, double dblhInches, const QString& sText, const QString& sFamily,
                                     bool bBold, bool bItalic) {
    const QString text = basTAVL::CRLF2Space(sText);
    const TextStyle style{sFamily, bBold, bItalic, Color::Black(), Color::White()};
    return PrintedText::AsMade(Recorded(Fold(text, style, dblwInches, dblhInches), text, style));
}
