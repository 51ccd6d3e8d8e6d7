// SPDX-License-Identifier: MIT
#include "drawing/basDraw.h"
#include "drawing/clsBMP.h"
#include "platform/paint/RecordingForm.h"
#include "platform/paint/Surface.h"
#include "platform/pictures/LoadPicture.h"
#include "platform/text/Numbers.h"
#include "services/basErrLog.h"

#include <algorithm>
#include <vector>

namespace {

constexpr int kMonochrome = 1;

// Black gives the first colour and white the second, what lies between a mixture: smooth edges.
QRgb Mixed(QRgb grey, Color fore, Color back) {
    const int share = qRed(grey);
    const auto mix = [share](int a, int b) { return (a * (255 - share) + b * share + 127) / 255; };
    return qRgb(mix(fore.Red(), back.Red()), mix(fore.Green(), back.Green()), mix(fore.Blue(), back.Blue()));
}

void SetFont(const clsBMP& bmp, int lLine) {
    basDraw::Draw_SetFont(bmp.FontName(), lLine, 0, 0, 0, bmp.FontBold(), bmp.FontItalic(), false);
}

} // namespace

// The width of the widest line, a multiple of eight and within what a surface may take; the line's height
// shrinks to fit.
int clsBMP::FitText(const QStringList& lines, int& lLine) const {
    constexpr int kEight = 8;
    int lW = 0;
    for (const QString& line : lines)
        lW = std::max(lW, basDraw::Draw_GetWidth(line));
    lW = std::max((lW + kEight - 1) / kEight * kEight, kEight);
    const int lMax = ScratchForm::LargestSize().width();
    if (lW <= lMax) return lW;
    const double dblScale = double(lMax) / lW;
    lLine = std::max(Int(m_lFontSize * dblScale), 1);
    return lMax;
}

void clsBMP::PaintText(DeviceContext& context, const QStringList& lines, int lLine, int lWidth, Color lFore,
                       Color lBack) const {
    basDraw::Draw_SetHdc(&context);
    SetFont(*this, lLine);
    basDraw::Draw_SetBrush(lBack);
    basDraw::Draw_SetPen(PenStyle::Null, 1, lBack);
    // A rectangle without a pen ends a pixel short of its right and lower edge.
    basDraw::Draw_Rect(0, 0, lWidth + 1, int(lines.size()) * lLine + 1);
    int y = 0;
    for (const QString& line : lines) {
        basDraw::Draw_Text(line, QStringLiteral("C"), lWidth / 2, y, lFore);
        y += lLine;
    }
    basDraw::Draw_ReleaseObjects();
}

void clsBMP::WriteText(DeviceContext& context, QSize size, Color lForeColor, Color lBackColor) {
    const bool mono = m_lBitsPerPixel == kMonochrome;
    const int bytes = int(mono ? basBMP::RowBytes1(size.width()) : basBMP::RowBytes24(size.width()));
    QByteArray row(bytes, '\0');
    std::vector<QRgb> pixels(size_t(size.width()));
    for (int y = size.height() - 1; y >= 0; --y) {
        context.GetPixels(0, y, pixels);
        if (mono) {
            row.fill('\0');
            for (size_t x = 0; x < pixels.size(); ++x) {
                if (qRed(pixels[x]) >= 128) row[qsizetype(x / 8)] = char(row[qsizetype(x / 8)] | 0x80 >> x % 8);
            }
        } else {
            for (QRgb& pixel : pixels)
                pixel = Mixed(pixel, lForeColor, lBackColor);
            basBMP::PackRow24(pixels, row);
        }
        m_file.PutBytes(row);
    }
}

bool clsBMP::CreateFileHoldingText(const QString& sText, Color lForeColor, Color lBackColor) try {
    const QStringList lines = sText.split(QChar(0));
    int lLine = std::max(m_lFontSize, 1);
    ScratchForm measure(QSize(1, 1));
    basDraw::Draw_SetHdc(&measure.hDC());
    SetFont(*this, lLine);
    const int lW = FitText(lines, lLine);
    basDraw::Draw_ReleaseObjects();

    const QSize size(lW, int(lines.size()) * lLine);
    ScratchForm form(size);
    PaintText(form.hDC(), lines, lLine, lW, Color::Black(), Color::White());
    if (!OpenFileAndSaveHeaders(size.width(), size.height(), m_lBitsPerPixel, lBackColor, lForeColor)) return false;
    WriteText(form.hDC(), size, lForeColor, lBackColor);
    CloseFile();

    RecordingForm recording(size, kScreenDotsPerInch);
    PaintText(recording.hDC(), lines, lLine, lW, lForeColor, lBackColor);
    KeepRecording(m_sFullPathToBmpFile, recording.Take());
    return true;
} catch (...) {
    ErrTail("clsBMP!", "CreateFileHoldingText", sText, lForeColor, lBackColor);
}
