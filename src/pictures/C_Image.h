// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/PictureOwner.h"
#include "pictures/PictureRef.h"
#include "pictures/TellOnce.h"
#include "platform/paint/Color.h"
#include "platform/paint/Picture.h"

#include <QString>

class C_Image;
class DeviceContext;
class PictureHolder;
class Surface;
enum class ScaleModeKind;

/// Makes the thumbnail files of images. frmBMP does it, which stands above the image and is installed at
/// start-up. Success is that the file exists afterwards; failures of the picture are told by the image.
class ThumbnailMaker {
public:
    virtual ~ThumbnailMaker() = default;
    virtual void CreateThumbRotatedTo90(C_Image& objImage) = 0;
    virtual void CreateThumbRotatedTo45(C_Image& objImage) = 0;
    virtual void CreateThumbElliptical(C_Image& objImage, bool bGray) = 0;
    /// What the rotated thumbnail shows, lSide pixels square, without a file. Null where there is nothing.
    virtual Picture RenderRotated(C_Image& objImage, int lSide) = 0;

    /// Called when the first thumbnail is wanted.
    using Creator = ThumbnailMaker& (*)();
    /// Returns the creator that it replaces.
    static Creator Install(Creator creator);
};

/// The square of a picture, in its own pixels, that a zoomed paint shows. It may reach beyond the picture.
struct ZoomedSource {
    int xSrc = 0;
    int ySrc = 0;
    int iSide = 0;

    /// lW and lH are the picture's size in pixels; zoom step z shows a square of the longer side / 2^(z/10)
    /// around the centre.
    static ZoomedSource Of(int lW, int lH, int iZoom, double fXCenter, double fYCenter);
};

/// A picture's place in a box: as large as it fits, centred, uncropped.
struct FittedBox {
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;

    static FittedBox Of(const Picture& picture, double xStart, double yStart, double xEnd, double yEnd);
};

/// A picture that the user chose for a space, a corner, a banknote or a token: where its file is, how that
/// place is written into the game file, how it is zoomed and centred, and which thumbnail belongs to it.
/// Nothing wrong with a picture ever stops the program: it is told once per path, and the area stays empty.
class C_Image {
public:
    /// The image's rectangle on the board, in fractions of the board's width. Kept here for the board.
    float X = 0;
    float Y = 0;
    float W = 0;
    float H = 0;

    const PictureOwner& Owner() const { return m_owner; }
    /// What was told of the owner's pictures.
    TellOnce& Told() const { return TellOnce::About(m_owner); }
    /// Kind of the owner: "Space", "Corner", "Money" or "Token"; empty for a free-standing image.
    QString SpaceOrCorner() const { return m_owner.KindName(); }
    void Let_SpaceOrCorner(const QString& sKind) { m_owner.kind = PictureOwner::KindOf(sKind); }
    /// The owner's number.
    qint16 Index() const { return m_owner.iNumber; }
    void Let_Index(qint16 iIndex) { m_owner.iNumber = iIndex; }

    /// The path last told to be bad.
    QString BadPath() const { return Told().LastTold(TellOnce::Fault::Picture); }
    /// Tells that the current path is bad and remembers that. The argument only triggers the report: nothing
    /// happens when it is the path already remembered.
    void Let_BadPath(const QString& sNewBadPath);
    /// As Let_BadPath, with the reason; silent when the current path was told before.
    void SetBadPath(const QString& sError);
    /// Somebody else has told that a path is bad: if it is this image's own, it isn't told again.
    void TakeBadPath(const QString& sTold);

    /// Absolute path of the picture; empty for none.
    QString FullPath() const { return m_ref.sPath; }
    /// A new picture starts unzoomed and uncentred, without a thumbnail. A missing file is told.
    void Let_FullPath(const QString& sNewPath);

    /// The path as a game file holds it: relative where the picture lies in the user's games folder or the
    /// program's, so that games travel with their pictures.
    QString RelativePath() const;
    void Let_RelativePath(const QString& sRelativeFile);

    /// Source column and row, in picture pixels, that come to the centre; whole numbers, halves to even.
    /// Both 0: not yet centred. Raise the overflow error outside 16 bits.
    float XCenter() const { return m_ref.iXCenter; }
    void Let_XCenter(float fXCenter);
    float YCenter() const { return m_ref.iYCenter; }
    void Let_YCenter(float fYCenter);
    bool IsCentered() const { return m_ref.IsCentered(); }
    /// Takes the centre that a paint has just given to a copy of this image, so that looking at a picture never
    /// counts as a change. Nothing where this one is centred already or shows another picture.
    void TakeCenterFrom(const C_Image& objCopy);
    /// Zoom step z magnifies 2^(z/10) times; 0 is the whole picture.
    qint16 Zoom() const { return m_ref.iZoom; }
    void Let_Zoom(qint16 iZoom);

    void Init(const QString& sNewPath, const QString& sSpaceOrCorner, qint16 iIndex);
    /// Copies another image; with bBadPathReport a bad path may be told on the way.
    void LoadFromObject(const C_Image& objMaster, bool bBadPathReport);
    /// The same part of the same picture for the same owner. BadPath and the rectangle aren't compared.
    bool operator==(const C_Image& objOther) const { return m_ref == objOther.m_ref && m_owner == objOther.m_owner; }
    bool IsDifferentFrom(const C_Image& objMaster) const;

    /// The image's four fields, without a separator behind them.
    QString GetQuotedString() const;
    /// Reads the four fields off the front and returns what is left. Raises the overflow error for a number
    /// outside 16 bits.
    QString SetQuotedString(const QString& sIn, const QString& sSpaceOrCorner, qint16 iIndex);
    /// Takes the next field off a record. The name is old and stays.
    static QString GetNextTest(QString& sText);

    bool IsWMF() const;
    /// Side of the board for a space, 4 and the corner's number for a corner, else 0.
    qint16 Orient() const { return m_owner.Orient(); }
    /// Path of the thumbnail's file; empty for a free-standing image. Raises for an unknown kind.
    QString Thumbname() const;

    // Painting. Boxes are in the surface's own units; what can't be painted is told once per path, and the
    // area stays as it is.

    /// The whole picture as large as it fits. The white of a one-bit drawing shows lBackColor, or with no
    /// colour what is beneath.
    void PaintPictureCentered(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd,
                              Color lBackColor);
    /// The part that the user chose, stretched to the box. Centres a picture that has no centre yet.
    /// ScaleMode says in which units picOriginal tells its size. True when it was painted.
    bool PaintPictureZoomed(Surface& objDest, PictureHolder& picOriginal, ScaleModeKind ScaleMode, double xStart,
                            double yStart, double xEnd, double yEnd, Color lBackColor);
    /// Stretches the picture, which is a metafile, to a box of the context's units. True when it was played.
    bool DrawMetafile(DeviceContext& hDC, int x, int y, int w, int h);
    /// Paints the thumbnail, made anew if need be, on the board; a finer rendering of the same where the
    /// thumbnail would be enlarged. For spaces and corners; raises for tokens and money.
    void DrawBitmapToScreen(Surface& picDest, double x, double y, double w, double h);
    /// Starts decoding on other processors what DrawBitmapToScreen would have to decode; true when it
    /// needn't.
    bool PrepareForScreen(Surface& picDest, double w, double h) const;
    /// As DrawBitmapToScreen, but without waiting: where something has to be decoded first, that is started,
    /// an up-to-date thumbnail is painted if there is one, and the answer is false.
    bool DrawWhatIsReady(Surface& picDest, double x, double y, double w, double h);
    /// Path of an up-to-date thumbnail, made if need be; empty without a picture. bGrayOnly isn't looked at.
    QString GetThumbnail(bool bGrayOnly);
    /// Starts decoding on another processor where GetThumbnail would have to.
    void PrepareThumbnail() const;
    /// Starts decoding on other processors what PaintPictureZoomed will show in a box of so many pixels of a
    /// printer.
    void PrepareForPaper(Surface& oPrinter, double side) const;

private:
    bool NeedsThumbnail() const;
    /// False when the disk refuses its file.
    bool MakeThumbnail();
    /// True when the disk has refused the thumbnail: what lies there, if anything, shows another picture.
    bool IsThumbnailRefused() const;
    /// From here on the file of that name is taken for another picture's.
    static void DistrustThumbnail(const QString& sThumb);
    /// Zoom and centre, to be compared.
    QString PartShown() const;
    /// In pixels.
    int LongerThumbSide() const;
    void PaintThumbnail(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd);
    /// Pixels of the rendering that a box takes in place of the thumbnail; 0 where that one has enough of them.
    int RenderingSide(Surface& picDest, double w, double h) const;
    void PaintThumbnailFile(Surface& picDest, const QString& sFile, double xStart, double yStart, double xEnd,
                            double yEnd);
    void TellBadThumbnail(const QString& sFile, const QString& sText) const;
    bool PaintRendering(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd);
    static QString MissingText(const QString& sName);
    static QString LoadFailureText(const QString& sName, const QString& sSystemText);
    /// How large the longer side of the whole picture is drawn when the square shown fills a box of so many
    /// pixels.
    int LongerSideWanted(double boxPixels) const;
    /// The picture; null, after one box per bad path, when there is none.
    Picture LoadOrTell(int longerSideWanted);
    bool ReloadOrTell(PictureHolder& picOriginal, int longerSideWanted) const;
    void PaintPart(Surface& objDest, const Picture& picture, double xStart, double yStart, double xEnd, double yEnd,
                   Color lBackColor) const;
    QString ReportText() const;
    void TellBadPath(const QString& sText) const;
    void StoreCenter(qint16& iCenter, float fCenter);
    /// Deletes the thumbnail's file; a failure is told, once for each file, and passed over.
    void KillThumb();

    PictureRef m_ref;
    PictureOwner m_owner;
};
