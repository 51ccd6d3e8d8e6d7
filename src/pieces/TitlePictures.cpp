// SPDX-License-Identifier: MIT
#include "pieces/TitlePictures.h"

#include "board/basPositTables.h"
#include "document/basTAVL.h"
#include "pieces/frmBMP.h"
#include "pieces/MadePicture.h"

namespace TitlePictures {
namespace {

constexpr int kTitleRecord = 1;
constexpr int kSubtitleRecord = 2;

/// Inches.
struct Layout {
    const char* sFile;
    double dblWidth; ///< 0: as wide as the text comes out.
    double dblHeight;
    const char* sFamily;
    bool bBoldItalic;
    bool bOnRed;
    double dblLineHeight; ///< 0: a single line that fills the picture.
};

constexpr Layout kLayouts[kCount] = {
    {"BmpTitle.temp", 0, 1.436, "Arial", false, false, 0},
    {"BmpSubtitle.temp", 7.375, 0.49, "Times New Roman", true, false, 0},
    {"BmpSubtitleRed.temp", 7.375, 0.49, "Times New Roman", true, true, 0},
    {"BmpSubtitleML.temp", 1.75, 0.571, "Times New Roman", true, true, 0.2},
};

} // namespace

int RecordOf(Title title) { return title == kTitle ? kTitleRecord : kSubtitleRecord; }

QString FileOf(Title title) { return MadePicture::PathOf(QString::fromLatin1(kLayouts[title].sFile)); }

bool Make(Title title) {
    const Layout& layout = kLayouts[title];
    const QString family = QString::fromLatin1(layout.sFamily);
    const bool style = layout.bBoldItalic;
    const Color fore = basTAVL::g_lPrintBlack();
    const Color back = layout.bOnRed ? basTAVL::g_lPrintRed() : basTAVL::g_lPrintBack();
    const SpecialText& record = basPosit::m_CenterText(RecordOf(title));
    if (layout.dblLineHeight > 0) {
        return frmBMP::Instance().GenerateTextImage(FileOf(title), layout.dblWidth, layout.dblHeight,
                                                    record.Lines().join(QStringLiteral("\r\n")), family, style, style,
                                                    layout.dblLineHeight, fore, back);
    }
    return frmBMP::Instance().GenerateSingleLineImage(FileOf(title), layout.dblWidth, layout.dblHeight, record.sText,
                                                      family, style, style, fore, back);
}

PrintedText Record(Title title, const Titles& titles) {
    const Layout& layout = kLayouts[title];
    const QString family = QString::fromLatin1(layout.sFamily);
    const bool style = layout.bBoldItalic;
    const SpecialText& record = titles.Text(RecordOf(title));
    if (layout.dblLineHeight > 0) {
        return frmBMP::RecordTextImage(layout.dblWidth, layout.dblHeight, record.Lines().join(QStringLiteral("\r\n")),
                                       family, style, style, layout.dblLineHeight);
    }
    return frmBMP::RecordSingleLine(layout.dblWidth, layout.dblHeight, record.sText, family, style, style);
}

} // namespace TitlePictures
