// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

/// A picture that the user chose for a space, a corner, a banknote or a token: where its file is, how that
/// place is written into the game file, how it is zoomed and centred, and which thumbnail belongs to it.
/// Nothing wrong with a picture ever stops the program: it is told once per path, and the area stays empty.
class C_Image {
public:
    /// Kind of the owner: "Space", "Corner", "Money" or "Token"; empty for a free-standing image.
    QString SpaceOrCorner;
    /// The owner's number.
    qint16 Index = 0;
    /// The image's rectangle on the board, in fractions of the board's width. Kept here for the board.
    float X = 0;
    float Y = 0;
    float W = 0;
    float H = 0;

    /// The path last told to be bad.
    QString BadPath() const { return m_sBadPath; }
    /// Tells that the current path is bad and remembers that. The argument only triggers the report: nothing
    /// happens when it is the path already remembered.
    void Let_BadPath(const QString& sNewBadPath);
    /// As Let_BadPath, with the reason; silent when the current path was told before.
    void SetBadPath(const QString& sError);

    /// Absolute path of the picture; empty for none.
    QString FullPath() const { return m_sFullPath; }
    /// A new picture starts unzoomed and uncentred, without a thumbnail. A missing file is told.
    void Let_FullPath(const QString& sNewPath);

    /// The path as a game file holds it: relative where the picture lies in the user's games folder or the
    /// program's, so that games travel with their pictures.
    QString RelativePath() const;
    void Let_RelativePath(const QString& sRelativeFile);

    /// Source column and row, in picture pixels, that come to the centre; whole numbers, halves to even.
    /// Both 0: not yet centred. Raise the overflow error outside 16 bits.
    float XCenter() const { return m_fXCenter; }
    void Let_XCenter(float fXCenter);
    float YCenter() const { return m_fYCenter; }
    void Let_YCenter(float fYCenter);
    /// Zoom step z magnifies 2^(z/10) times; 0 is the whole picture.
    qint16 Zoom() const { return m_iZoom; }
    void Let_Zoom(qint16 iZoom);

    void Init(const QString& sNewPath, const QString& sSpaceOrCorner, qint16 iIndex);
    /// Copies another image; with bBadPathReport a bad path may be told on the way.
    void LoadFromObject(const C_Image& objMaster, bool bBadPathReport);
    /// BadPath and the rectangle aren't compared.
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
    qint16 Orient() const;
    /// Path of the thumbnail's file; empty for a free-standing image. Raises for an unknown kind.
    QString Thumbname() const;

private:
    bool HasKnownKind() const;
    QString ReportText() const;
    void StoreCenter(qint16& iCenter, float fCenter);
    /// Deletes the thumbnail's file; a failure is told and passed over.
    void KillThumb();

    QString m_sFullPath;
    QString m_sBadPath;
    qint16 m_iZoom = 0;
    qint16 m_fXCenter = 0;
    qint16 m_fYCenter = 0;
};
