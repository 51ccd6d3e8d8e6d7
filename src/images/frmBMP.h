// SPDX-License-Identifier: MIT
#pragma once

#include "images/C_Image.h"
#include "platform/Files.h"
#include "platform/PictureHolder.h"

#include <array>
#include <list>

class BinaryFile;

/// The hidden drawing surface of the run: turns and cuts pictures into the small bitmap files that the board
/// pastes. Main thread only.
class frmBMP : public ThumbnailMaker {
public:
    static constexpr int kRotatedSide = 100;
    static constexpr int kTokenSide = 200;
    static constexpr QSize kMoneySize{164, 190};

    /// Created at the first call and kept for the run.
    static frmBMP& Instance();
    /// From now on images have their thumbnails made here.
    static void InstallAsThumbnailMaker();

    /// 100 by 100 pixels, turned to the image's side of the board.
    void CreateThumbRotatedTo90(C_Image& oImage) override;
    /// 100 by 100 pixels, a diamond turned to the image's corner of the board.
    void CreateThumbRotatedTo45(C_Image& oImage) override;
    /// An ellipse on white: 164 by 190 pixels for money, 200 by 200 for the rest. In greys with bGray.
    void CreateThumbElliptical(C_Image& oImage, bool bGray) override;

    Picture RenderRotated(C_Image& oImage, int lSide) override;

    /// The space in a cell of a two-row sheet of six columns; blocks above 0 are the second half. The print
    /// console has a copy of its own, and that is the one in use.
    static void GetSpaceFromArrayCoordinates(int iBlock, int iRow, int iCol, int& iSpace);

private:
    /// A rotated rendering kept in memory, so that a board that is painted again isn't turned again.
    struct Rendering {
        QString sPath;
        Files::Stamp stamp;
        std::array<int, 5> look; ///< Zoom, centre, orientation and side.
        QImage image;
    };

    QImage Drawn(C_Image& oImage, QSize size, Color backColor);
    QImage DrawnSquare(C_Image& oImage, int lSide);
    QImage Rotated(C_Image& oImage, int lSide);
    void DropOldRenderings();
    static void DeleteThumb(const QString& sThumb);
    static void WriteFileHead(BinaryFile& file, int lWidth, int lHeight);
    static void WriteInfoHead(BinaryFile& file, int lWidth, int lHeight);
    static void WriteThumb(const QString& sThumb, const QImage& image);

    PictureHolder picOriginal;
    /// Used last stands first.
    std::list<Rendering> m_renderings;
};
