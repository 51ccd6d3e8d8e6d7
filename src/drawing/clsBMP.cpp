// SPDX-License-Identifier: MIT
#include "drawing/clsBMP.h"

#include "platform/files/Files.h"
#include "platform/paint/DeviceContext.h"
#include "platform/text/NewLine.h"
#include "services/basErrLog.h"
#include "services/basMsgQueue.h"
#include "services/basPath.h"
#include "services/Desktop.h"
#include "services/FileRefused.h"

#include <vector>

namespace {

const QString kGap = kNewLine + kNewLine;
constexpr int kDotsPerMetre = 3780; // 96 an inch
constexpr int kTrueColor = 24;
constexpr int kMonochrome = 1;
constexpr int kTableBytes = 8;

// Blue in the first byte, as a file means it.
basBMP::RgbQuad TableEntry(Color color) {
    return {quint8(color.Blue()), quint8(color.Green()), quint8(color.Red()), 0};
}

// A byte for each eight pixels; what is left of a width that eight doesn't divide is lost, as it always was.
void PackRow1(std::span<const QRgb> pixels, QByteArray& row) {
    constexpr QRgb kColorBits = 0xFFFFFF;
    int accumulator = 0;
    int bytes = 0;
    for (size_t x = 0; x < pixels.size(); ++x) {
        if ((pixels[x] & kColorBits) != 0) ++accumulator;
        if (x % 8 == 7) {
            row[bytes++] = char(accumulator);
            accumulator = 0;
        } else {
            accumulator *= 2;
        }
    }
}

} // namespace

void clsBMP::SetFontInfo(const QString& sFont, int lSize, bool bBold, bool bItalic) {
    Let_FontName(sFont);
    Let_FontSize(lSize);
    Let_FontBold(bBold);
    Let_FontItalic(bItalic);
}

bool clsBMP::OpenFileAndSaveHeaders(int lWidth, int lHeight, int lBitsPerPixel, Color lColor1, Color lColor0) try {
    QString error;
    m_sWhyNotWritten.clear();
    if (!Files::Remove(m_sFullPathToBmpFile, error)) {
        m_sWhyNotWritten = RefusedText(m_sFullPathToBmpFile, error);
        basMsgQueue::MsgQueue_Post(QStringLiteral("Unable to delete file named '") + m_sFullPathToBmpFile + kGap +
                                       QStringLiteral("The following error was reported: ") + kGap + error,
                                   vbOKOnly);
        return false;
    }
    if (lBitsPerPixel != kMonochrome && lBitsPerPixel != kTrueColor)
        basErrLog::ErrUnexVal(QStringLiteral("lBitsPerPixel"), lBitsPerPixel);
    const bool mono = lBitsPerPixel == kMonochrome;
    const qint64 pixels = (mono ? basBMP::RowBytes1(lWidth) : basBMP::RowBytes24(lWidth)) * lHeight;
    const int heads = basBMP::FileHead::kSize + basBMP::InfoHead::kSize + (mono ? kTableBytes : 0);
    m_fileHead = basBMP::FileHead{basBMP::FileHead::kType, quint32(pixels + heads), 0, 0, quint32(heads)};
    m_info.bmiHeader =
        basBMP::InfoHead{basBMP::InfoHead::kSize, lWidth,        lHeight, 1, quint16(lBitsPerPixel), 0, quint32(pixels),
                         kDotsPerMetre,           kDotsPerMetre, 0,       0};
    if (!m_file.OpenNew(m_sFullPathToBmpFile, error)) ErrRaiseRefused(m_sFullPathToBmpFile, error);
    basBMP::WriteFileHead(m_file, m_fileHead);
    basBMP::WriteInfoHead(m_file, m_info);
    if (mono) {
        m_info.bmiColors[0] = TableEntry(lColor0);
        m_info.bmiColors[1] = TableEntry(lColor1);
        basBMP::WriteColorTable(m_file, m_info, lColor1);
    }
    return true;
} catch (...) {
    ErrTail("clsBMP!", "OpenFileAndSaveHeaders", lWidth, lHeight, lBitsPerPixel, lColor1, lColor0);
}

void clsBMP::CloseFile() {
    QString error;
    const bool written = m_file.WasWritten(error);
    m_file.Close();
    if (!written) ErrRaiseRefused(m_sFullPathToBmpFile, error);
}

bool clsBMP::WriteImage(const Pixels& pixels) {
    if (!OpenFileAndSaveHeaders(pixels.Width(), pixels.Height(), kTrueColor, Color::White(), Color::Black()))
        return false;
    QByteArray row(basBMP::RowBytes24(pixels.Width()), '\0');
    for (int y = pixels.Height() - 1; y >= 0; --y) {
        basBMP::PackRow24(pixels.Row(y), row);
        m_file.PutBytes(row);
    }
    CloseFile();
    return true;
}

bool clsBMP::CreateFileHoldingImage(const QString& sFile, DeviceContext& hDCSrce, int lWidth, int lHeight, int lwRow,
                                    int lhRow, int lBitsPerPixel) try {
    Let_FullPathToBmpFile(sFile);
    Let_BitsPerPixel(lBitsPerPixel);
    basErrLog::ErrAssert(lBitsPerPixel == kMonochrome || lBitsPerPixel == kTrueColor,
                         QStringLiteral("Bits per pixel must be 1 or 24"));
    if (!OpenFileAndSaveHeaders(lWidth, lHeight, lBitsPerPixel, Color::White(), Color::Black())) return false;
    const bool mono = lBitsPerPixel == kMonochrome;
    QByteArray row(mono ? basBMP::RowBytes1(lWidth) : basBMP::RowBytes24(lWidth), '\0');
    // A call of the system for each row would take longer than the rows.
    constexpr qsizetype kAtOnce = 256 * 1024;
    QByteArray rows;
    rows.reserve(kAtOnce + row.size());
    std::vector<QRgb> pixels(size_t(std::max(lWidth, 0)));
    const int band = mono ? lWidth : std::max(lwRow, 1);
    for (int y = lHeight - 1; y >= 0; --y) {
        for (int iBand = 0; iBand * band < lWidth; ++iBand) {
            const int from = iBand * band;
            const auto part = std::span(pixels).subspan(size_t(from), size_t(std::min(band, lWidth - from)));
            hDCSrce.GetPixels(0, y + lhRow * iBand, part);
        }
        if (mono) {
            PackRow1(pixels, row);
        } else {
            basBMP::PackRow24(pixels, row);
        }
        rows += row;
        if (rows.size() < kAtOnce && y > 0) continue;
        m_file.PutBytes(rows);
        rows.resize(0);
    }
    CloseFile();
    return true;
} catch (...) {
    ErrTail("clsBMP!", "CreateFileHoldingImage", sFile, hDCSrce, lWidth, lHeight, lwRow, lhRow, lBitsPerPixel);
}
