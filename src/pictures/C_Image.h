// SPDX-License-Identifier: MIT
#pragma once

#include "pictures/OwnedPicture.h"
#include "pictures/PicturePlaces.h"
#include "platform/paint/Color.h"

#include <QString>

class PictureHolder;
class Surface;
enum class ScaleModeKind;

/// A picture that the user chose for a space, a corner, a banknote or a token: which one, which part of it, and whose
/// it is. A value: setting and copying it touches no file but to see whether a new path leads anywhere. What was told
/// (TellOnce), its thumbnail (ThumbnailStore), where an uncentred one has its middle (PictureMiddle) and the painting
/// (PaintPicture, BoardThumbnail) stand for themselves; here are the operations that records and windows ask for.
/// Nothing wrong with a picture ever stops the program: it is told once per path, and the area stays empty.
class C_Image {
public:
    /// The image's rectangle on the board, in fractions of the board's width. Kept here for the board.
    float X = 0;
    float Y = 0;
    float W = 0;
    float H = 0;

    const OwnedPicture& Owned() const { return m_picture; }
    const PictureRef& Ref() const { return m_picture.ref; }
    const PictureOwner& Owner() const { return m_picture.owner; }
    /// What was told of the owner's pictures.
    TellOnce& Told() const { return m_picture.Told(); }
    /// Kind of the owner: "Space", "Corner", "Money" or "Token"; empty for a free-standing image.
    QString SpaceOrCorner() const { return m_picture.owner.KindName(); }
    void Let_SpaceOrCorner(const QString& sKind) { m_picture.owner.kind = PictureOwner::KindOf(sKind); }
    /// The owner's number.
    qint16 Index() const { return m_picture.owner.iNumber; }
    void Let_Index(qint16 iIndex) { m_picture.owner.iNumber = iIndex; }

    /// The path last told to be bad.
    QString BadPath() const { return Told().LastTold(TellOnce::Fault::Picture); }
    /// Tells that the current path is bad and remembers that. The argument only triggers the report: nothing
    /// happens when it is the path already remembered.
    void Let_BadPath(const QString& sNewBadPath) const;
    /// As Let_BadPath, with the reason; silent when the current path was told before.
    void SetBadPath(const QString& sError) const;
    /// Somebody else has told that a path is bad: if it is this image's own, it isn't told again.
    void TakeBadPath(const QString& sTold) const;

    /// Absolute path of the picture; empty for none.
    QString FullPath() const { return m_picture.ref.sPath; }
    /// A new picture starts unzoomed and uncentred. A missing file is told.
    void Let_FullPath(const QString& sNewPath);
    /// Takes the picture off a copy that is to be painted without it. What was told of it stays told.
    void GiveUp() { m_picture.ref = PictureRef(); }

    /// The path as a game file holds it: relative where the picture lies in the user's games folder or the
    /// program's, so that games travel with their pictures.
    QString RelativePath() const;
    void Let_RelativePath(const QString& sRelativeFile);

    /// Source column and row, in picture pixels, that come to the centre; whole numbers, halves to even. Both 0: not
    /// yet centred; once it was painted, its middle. Raise the overflow error outside 16 bits.
    float XCenter() const { return Centered().iXCenter; }
    void Let_XCenter(float fXCenter);
    float YCenter() const { return Centered().iYCenter; }
    void Let_YCenter(float fYCenter);
    bool IsCentered() const { return Centered().IsCentered(); }
    /// Zoom step z magnifies 2^(z/10) times; 0 is the whole picture.
    qint16 Zoom() const { return m_picture.ref.iZoom; }
    void Let_Zoom(qint16 iZoom) { m_picture.ref.iZoom = iZoom; }

    void Init(const QString& sNewPath, const QString& sSpaceOrCorner, qint16 iIndex);
    /// Copies another image; with bBadPathReport a bad path may be told on the way.
    void LoadFromObject(const C_Image& objMaster, bool bBadPathReport);
    /// The same part of the same picture for the same owner: a picture centred by nobody equals one centred on its
    /// middle. BadPath and the rectangle aren't compared.
    bool operator==(const C_Image& objOther) const;
    bool IsDifferentFrom(const C_Image& objMaster) const { return !(*this == objMaster); }

    /// The image's four fields, without a separator behind them.
    QString GetQuotedString() const;
    /// Reads the four fields off the front and returns what is left. Raises the overflow error for a number
    /// outside 16 bits.
    QString SetQuotedString(const QString& sIn, const QString& sSpaceOrCorner, qint16 iIndex);
    /// As SetQuotedString, but the picture is found by what is given, and a missing one isn't told.
    QString Read(const QString& sIn, const PictureOwner& owner, const PicturePlaces::Finder& find);
    /// What SetQuotedString tells beside reading: that the picture, which is another than this one, is missing.
    void TellIfMissing(const C_Image& objBefore) const;
    /// Takes the next field off a record. The name is old and stays.
    static QString GetNextTest(QString& sText);

    bool IsWMF() const { return m_picture.ref.IsMetafile(); }
    /// Side of the board for a space, 4 and the corner's number for a corner, else 0.
    qint16 Orient() const { return m_picture.owner.Orient(); }
    /// Path of the thumbnail's file; empty for a free-standing image. Raises for an unknown kind.
    QString Thumbname() const;

    // Painting. Boxes are in the surface's own units; what can't be painted is told once per path, and the
    // area stays as it is.

    /// The whole picture as large as it fits. The white of a one-bit drawing shows lBackColor, or with no
    /// colour what is beneath.
    void PaintPictureCentered(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd,
                              Color lBackColor) const;
    /// The part that the user chose, stretched to the box; the middle where none was chosen, and from then on that is
    /// the centre. ScaleMode says in which units picOriginal tells its size. True when it was painted.
    bool PaintPictureZoomed(Surface& objDest, PictureHolder& picOriginal, ScaleModeKind ScaleMode, double xStart,
                            double yStart, double xEnd, double yEnd, Color lBackColor) const;
    /// Paints the thumbnail, made anew if need be, on the board; a finer rendering of the same where the
    /// thumbnail would be enlarged. For spaces and corners; raises for tokens and money.
    void DrawBitmapToScreen(Surface& picDest, double x, double y, double w, double h) const;
    /// Path of an up-to-date thumbnail, made if need be; empty without a picture. bGrayOnly isn't looked at.
    QString GetThumbnail(bool bGrayOnly) const;

private:
    PictureRef Centered() const;
    bool Show(const QString& sNewPath);
    void ReadPart(QString& sRest);
    void TellBadPath(const QString& sText) const;
    /// Deletes the thumbnail's file; a failure is told, once for each file, and passed over.
    void KillThumb() const;
    void PaintThumbnail(Surface& picDest, double xStart, double yStart, double xEnd, double yEnd) const;

    OwnedPicture m_picture;
};
