// SPDX-License-Identifier: MIT
#pragma once

#include "drawing/basBMP.h"
#include "platform/files/BinaryFile.h"
#include "platform/paint/Color.h"
#include "platform/paint/Pixels.h"

#include <QString>
#include <QStringList>

class DeviceContext;
class Surface;

/// Writes bitmap files from whatever stands on a device context, or from text; short-lived, one for each
/// file. Unlike those of thumbnails, the sizes in its heads are true.
class clsBMP {
public:
    /// The oval of a banknote in pixels.
    static constexpr QSize kOval{164, 190};

    /// The destination that the file is made for; kept for the caller.
    void Init(Surface* objDest) { m_oDest = objDest; }
    Surface* Destination() const { return m_oDest; }

    Color BackColor() const { return m_lBackColor; }
    void Let_BackColor(Color lColor) { Assign(m_lBackColor, lColor); }
    /// 1 or 24.
    int BitsPerPixel() const { return m_lBitsPerPixel; }
    void Let_BitsPerPixel(int lBits) { Assign(m_lBitsPerPixel, lBits); }
    /// Size of the destination in pixels.
    int DestHeight() const { return m_lDestHeight; }
    void Let_DestHeight(int lHeight) { Assign(m_lDestHeight, lHeight); }
    int DestWidth() const { return m_lDestWidth; }
    void Let_DestWidth(int lWidth) { Assign(m_lDestWidth, lWidth); }
    bool FontBold() const { return m_bFontBold; }
    void Let_FontBold(bool bBold) { Assign(m_bFontBold, bBold); }
    bool FontItalic() const { return m_bFontItalic; }
    void Let_FontItalic(bool bItalic) { Assign(m_bFontItalic, bItalic); }
    const QString& FontName() const { return m_sFontName; }
    void Let_FontName(const QString& sName) { Assign(m_sFontName, sName); }
    /// Height of a text line in pixels at full size.
    int FontSize() const { return m_lFontSize; }
    void Let_FontSize(int lSize) { Assign(m_lFontSize, lSize); }
    Color ForeColor() const { return m_lForeColor; }
    void Let_ForeColor(Color lColor) { Assign(m_lForeColor, lColor); }
    const QString& FullPathToBmpFile() const { return m_sFullPathToBmpFile; }
    void Let_FullPathToBmpFile(const QString& sPath) { Assign(m_sFullPathToBmpFile, sPath); }
    // One property: its reader and its writer have always been spelt differently.
    const QString& FullPathToSrceFile() const { return m_sFullPathToSrceFile; }
    void Let_FullPathToSrcFile(const QString& sPath) { Assign(m_sFullPathToSrceFile, sPath); }
    /// Kept for the caller.
    int Margin() const { return m_lMargin; }
    void Let_Margin(int lMargin) { Assign(m_lMargin, lMargin); }
    /// What GetEllipticalPicture or GetEllipticalWhite gave.
    const ::Picture& Picture() const { return m_oPicture; }
    void ClearPicture() { m_oPicture = ::Picture(); }
    /// True once any of the above was given another value.
    bool IsChanged() const { return m_bChanged; }

    void SetFontInfo(const QString& sFont, int lSize, bool bBold, bool bItalic);

    /// Starts FullPathToBmpFile anew and leaves it open for the rows. With 1 bit the two colours become its
    /// table. False, after a box, when an old file is in the way. Raises when it can't be written.
    bool OpenFileAndSaveHeaders(int lWidth, int lHeight, int lBitsPerPixel, Color lColor1, Color lColor0);

    /// Why the file begun last was refused; empty when it wasn't.
    const QString& WhyNotWritten() const { return m_sWhyNotWritten; }

    /// Writes the top left lWidth by lHeight pixels of a context. A picture wider than the surface stands on
    /// it folded into bands lwRow wide, lhRow one below the other, and is unfolded here (24 bits only).
    bool CreateFileHoldingImage(const QString& sFile, DeviceContext& hDCSrce, int lWidth, int lHeight, int lwRow,
                                int lhRow, int lBitsPerPixel);

    /// Writes lines of text, joined by the character 0 and centred, in the font given. No wider than a drawing
    /// surface may be: the font then becomes smaller.
    bool CreateFileHoldingText(const QString& sText, Color lForeColor, Color lBackColor);

    /// The picture stretched to a banknote's oval on white; kept as a file beside the thumbnails for as long
    /// as the picture doesn't change. Null, after a box unless the path was told before, when it can't be had.
    ::Picture GetEllipticalPicture(const QString& sImagePath, const QString& sImageBadPath, bool bGray);

    /// White in the oval and black outside: the mask of a banknote's oval, kept as a file in My Games. Wanted
    /// finer than the file, it is drawn anew by the same rule: the file's steps would show on paper.
    ::Picture GetEllipticalWhite(QSize size = kOval);

    /// A picture with white outside the inscribed ellipse; in greys with bGray.
    static Pixels CutElliptical(const Pixels& pixels, bool bGray);

private:
    template <typename T>
    void Assign(T& member, const T& value) {
        if (member == value) return;
        member = value;
        m_bChanged = true;
    }
    bool WriteImage(const Pixels& pixels);
    void CloseFile();
    int FitText(const QStringList& lines, int& lLine) const;
    void PaintText(DeviceContext& context, const QStringList& lines, int lLine, int lWidth, Color lFore,
                   Color lBack) const;
    void WriteText(DeviceContext& context, QSize size, Color lForeColor, Color lBackColor);
    bool IsCopyUsable(const QString& sCopy, const QString& sImagePath);
    bool MakeEllipticalCopy(const QString& sCopy, const QString& sImagePath, bool bTold, bool bGray);

    Surface* m_oDest = nullptr;
    Color m_lBackColor = Color::White();
    Color m_lForeColor;
    int m_lBitsPerPixel = 24;
    int m_lDestHeight = 0;
    int m_lDestWidth = 0;
    bool m_bFontBold = false;
    bool m_bFontItalic = false;
    QString m_sFontName;
    int m_lFontSize = 0;
    QString m_sFullPathToBmpFile;
    QString m_sWhyNotWritten;
    QString m_sFullPathToSrceFile;
    int m_lMargin = 0;
    bool m_bChanged = false;
    ::Picture m_oPicture;
    BinaryFile m_file;
    basBMP::FileHead m_fileHead;
    basBMP::BitmapInfo m_info;
};

/// The pixels of a row that lie in the ellipse inscribed in a box: iFirst up to, not including, iStop.
struct EllipseSpan {
    int iFirst = 0;
    int iStop = 0;

    static EllipseSpan At(int y, int lW, int lH);
};
