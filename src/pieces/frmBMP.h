// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/ThumbnailStore.h"
#include "pieces/PrintedText.h"
#include "platform/files/Files.h"
#include "platform/paint/Pixels.h"
#include "platform/pictures/PictureHolder.h"

#include <functional>
#include <list>

class BinaryFile;
class C_Corner;
class C_Money;
class C_Space;
class C_Token;
class Surface;

/// The hidden drawing surface of the run: turns and cuts pictures into the small bitmap files that the board
/// pastes. Main thread only.
class frmBMP : public ThumbnailMaker {
public:
    /// Created at the first call and kept for the run.
    static frmBMP& Instance();
    /// From now on images have their thumbnails made here.
    static void InstallAsThumbnailMaker();

    /// 100 by 100 pixels, turned to the image's side of the board.
    void CreateThumbRotatedTo90(const OwnedPicture& oImage) override;
    /// 100 by 100 pixels, a diamond turned to the image's corner of the board.
    void CreateThumbRotatedTo45(const OwnedPicture& oImage) override;
    /// An ellipse on white: 164 by 190 pixels for money, 200 by 200 for the rest. In greys with bGray.
    void CreateThumbElliptical(const OwnedPicture& oImage, bool bGray) override;

    Picture RenderRotated(const OwnedPicture& oImage, int lSide) override;

    // Pictures of pieces, each drawn as large as a hidden surface may be and written as a 24-bit bitmap file.
    // Sizes are inches. True when the file was written. A picture loaded from such a file in this run prints
    // as it was drawn: text as text, photos with their own pixels.

    /// Why the last of them was not written, in a sentence that names the file; empty when it was.
    const QString& WhyNotMade() const { return m_sWhyNotMade; }

    bool GenerateCornerImage(const QString& sFullPathDest, int iCorner);
    bool GenerateMoneyImage(const QString& sFullPathDest, int iMoney);
    /// One line of text, as wide as it comes out but at least dblwInches. Folded into bands while it is drawn
    /// where the surface is too narrow for it.
    bool GenerateSingleLineImage(const QString& sFullPathDest, double dblwInches, double dblhInches,
                                 const QString& sText, const QString& sFamily, bool bBold, bool bItalic,
                                 Color lForeColor, Color lBackColor);
    /// A board space as it stands on its sheet: colour band, price, picture and text.
    bool GenerateSpaceFullImage(const QString& sFullPathDest, int iSpace);
    bool GenerateSpaceStickerImage(const QString& sFullPathDest, int iSpace);
    /// One line of text that fills the box, stretched in x; without bStretch only squeezed where it must be.
    bool GenerateStretchedTextImage(const QString& sFullPathDest, double dblwInches, double dblhInches,
                                    const QString& sText, const QString& sFamily, bool bBold, bool bItalic,
                                    Color lForeColor, Color lBackColor, bool bStretch);
    /// Lines of text, centred, each dblSize inches high unless they must shrink to fit.
    bool GenerateTextImage(const QString& sFullPathDest, double dblwInches, double dblhInches, const QString& sText,
                           const QString& sFamily, bool bBold, bool bItalic, double dblSize, Color lForeColor,
                           Color lBackColor);
    /// Side of the square that a token's sticker is made for.
    static constexpr double kTokenInches = 0.875;
    /// 266 pixels square.
    bool GenerateTokenImage(const QString& sFullPathDest, int iToken);

    // The same drawings, kept instead of written, of pieces in whatever game; of stickers, notes and tokens the words
    // only, as they stand where there is a picture, too. No file is read or written.

    static PrintedText RecordSpaceText(const C_Space& space);
    static PrintedText RecordCornerText(const C_Corner& corner);
    static PrintedText RecordMoneyText(const C_Money& note);
    static PrintedText RecordTokenText(const C_Token& token);
    static PrintedText RecordSingleLine(double dblwInches, double dblhInches, const QString& sText,
                                        const QString& sFamily, bool bBold, bool bItalic);
    static PrintedText RecordTextImage(double dblwInches, double dblhInches, const QString& sText,
                                       const QString& sFamily, bool bBold, bool bItalic, double dblSize);

    /// The space in a cell of a two-row sheet of six columns; blocks above 0 are the second half. The label
    /// sheets ask it under a routine of their own.
    static void GetSpaceFromArrayCoordinates(int iBlock, int iRow, int iCol, int& iSpace);

private:
    /// A rotated rendering kept in memory, so that a board that is painted again isn't turned again.
    struct Rendering {
        PictureRef picture;
        Files::Stamp stamp;
        int iOrient;
        Color beyond;
        Pixels pixels;
    };
    using DrawPiece = std::function<void(Surface&)>;

    /// dblDPI of the picture's pixels make an inch of the piece.
    bool WritePiece(const QString& sFullPathDest, QSize size, double dblDPI, const DrawPiece& draw);

    Pixels Drawn(const OwnedPicture& oImage, QSize size, Color backColor);
    Pixels DrawnSquare(const OwnedPicture& oImage, int lSide);
    Pixels Rotated(const OwnedPicture& oImage, int lSide);
    void DropOldRenderings();
    static void DeleteThumb(const QString& sThumb, QSize size);
    static void WriteFileHead(BinaryFile& file, int lWidth, int lHeight);
    static void WriteInfoHead(BinaryFile& file, int lWidth, int lHeight);
    static void WriteThumb(const QString& sThumb, const Pixels& pixels);

    PictureHolder picOriginal;
    QString m_sWhyNotMade;
    /// Used last stands first.
    std::list<Rendering> m_renderings;
};
